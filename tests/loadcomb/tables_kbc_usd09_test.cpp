#include "loadcomb/handed_rows.h"

#include <gtest/gtest.h>

// Which rows KBC-USD09 hands over, derived by hand from the printed rows.
namespace {

using namespace handed;

constexpr double d = 2.0 / 3.0;         // a term of a text that ends in /1.5
constexpr double e = 0.7 * (2.0 / 3.0);
constexpr double a = 1.6 * alphaH;      // (APH)EV beside 1.6

TEST(TablesKbcUsd09, DeadAndLiveLoad)
{
    const Rows expected = {
        {service,  "(DL+FP+EV)",                           {{"DL", 1.0}, {"FP", 1.0}, {"EV", 1.0}}},
        {service,  "(DL+FP) + (LL+(APH)EV+EH)",            {{"DL", 1.0}, {"FP", 1.0}, {"LL", 1.0}, {"EV", alphaH}, {"EH", 1.0}}},
        {service,  "DL",                                   {{"DL", 1.0}}},
        {strength, "1.4DL",                                {{"DL", 1.4}}},
        {strength, "1.2(DL+FP) + 1.6(LL+((APH)EV+EH))",    {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 1.6}}},
        {strength, "0.9DL",                                {{"DL", 0.9}}},
        {strength, "0.9DL",                                {{"DL", 0.9}}},
    };
    for (const int type : {0, 1, 2})
        EXPECT_EQ(lines(rowsOf("KBC-USD09", "DL LL", type)), lines(expected)) << "type " << type;
}

TEST(TablesKbcUsd09, DeadLiveWindAndEarthquake)
{
    const Rows expected = {
        {service,  "(DL+FP+EV)",                           {{"DL", 1.0}, {"FP", 1.0}, {"EV", 1.0}}},
        {service,  "(DL+FP) + (LL+(APH)EV+EH)",            {{"DL", 1.0}, {"FP", 1.0}, {"LL", 1.0}, {"EV", alphaH}, {"EH", 1.0}}},
        {service,  "(DL + WL + LL)/1.5",                   {{"DL", d}, {"WL", d}, {"LL", d}}},
        {service,  "(DL - WL + LL)/1.5",                   {{"DL", d}, {"WL", -d}, {"LL", d}}},
        {service,  "(DL + 0.7EL + LL)/1.5",                {{"DL", d}, {"EL", e}, {"LL", d}}},
        {service,  "(DL - 0.7EL + LL)/1.5",                {{"DL", d}, {"EL", -e}, {"LL", d}}},
        {service,  "(DL + WL)/1.5",                        {{"DL", d}, {"WL", d}}},
        {service,  "(DL - WL)/1.5",                        {{"DL", d}, {"WL", -d}}},
        {service,  "(DL + 0.7EL)/1.5",                     {{"DL", d}, {"EL", e}}},
        {service,  "(DL - 0.7EL)/1.5",                     {{"DL", d}, {"EL", -e}}},
        {strength, "1.4DL",                                {{"DL", 1.4}}},
        {strength, "1.2(DL+FP) + 1.6(LL+((APH)EV+EH))",    {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 1.6}}},
        {strength, "1.2DL + 1.3WL + 1.0LL",                {{"DL", 1.2}, {"WL", 1.3}, {"LL", 1.0}}},
        {strength, "1.2DL - 1.3WL + 1.0LL",                {{"DL", 1.2}, {"WL", -1.3}, {"LL", 1.0}}},
        {strength, "1.2DL + 1.0(SUF)EL + 1.0LL",           {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}}},
        {strength, "1.2DL - 1.0(SUF)EL + 1.0LL",           {{"DL", 1.2}, {"EL", -1.0}, {"LL", 1.0}}},
        {strength, "0.9DL + 1.3WL",                        {{"DL", 0.9}, {"WL", 1.3}}},
        {strength, "0.9DL - 1.3WL",                        {{"DL", 0.9}, {"WL", -1.3}}},
        {strength, "0.9DL",                                {{"DL", 0.9}}},
        {strength, "0.9DL + 1.0(SUF)EL",                   {{"DL", 0.9}, {"EL", 1.0}}},
        {strength, "0.9DL - 1.0(SUF)EL",                   {{"DL", 0.9}, {"EL", -1.0}}},
        {strength, "0.9DL",                                {{"DL", 0.9}}},
    };
    EXPECT_EQ(lines(rowsOf("KBC-USD09", "DL LL WL EL", 0)), lines(expected));
}

const Rows fullService = {
    {service, "(DL+FP+EV)",                              {{"DL", 1.0}, {"FP", 1.0}, {"EV", 1.0}}},
    {service, "(DL+FP) + (LL+(APH)EV+EH) + LR",          {{"DL", 1.0}, {"FP", 1.0}, {"LL", 1.0}, {"EV", alphaH}, {"EH", 1.0}, {"LR", 1.0}}},
    {service, "(DL+FP) + (LL+(APH)EV+EH) + SL",          {{"DL", 1.0}, {"FP", 1.0}, {"LL", 1.0}, {"EV", alphaH}, {"EH", 1.0}, {"SL", 1.0}}},
    {service, "(DL+FP) + (LL+(APH)EV+EH) + RL",          {{"DL", 1.0}, {"FP", 1.0}, {"LL", 1.0}, {"EV", alphaH}, {"EH", 1.0}, {"RL", 1.0}}},
    {service, "DL + LR + LL",                            {{"DL", 1.0}, {"LR", 1.0}, {"LL", 1.0}}},
    {service, "(DL + LR + WL)/1.5",                      {{"DL", d}, {"LR", d}, {"WL", d}}},
    {service, "(DL + LR - WL)/1.5",                      {{"DL", d}, {"LR", d}, {"WL", -d}}},
    {service, "DL + SL + LL",                            {{"DL", 1.0}, {"SL", 1.0}, {"LL", 1.0}}},
    {service, "(DL + SL + WL)/1.5",                      {{"DL", d}, {"SL", d}, {"WL", d}}},
    {service, "(DL + SL - WL)/1.5",                      {{"DL", d}, {"SL", d}, {"WL", -d}}},
    {service, "DL + RL + LL",                            {{"DL", 1.0}, {"RL", 1.0}, {"LL", 1.0}}},
    {service, "(DL + RL + WL)/1.5",                      {{"DL", d}, {"RL", d}, {"WL", d}}},
    {service, "(DL + RL - WL)/1.5",                      {{"DL", d}, {"RL", d}, {"WL", -d}}},
    {service, "(DL + WL + LL + LR)/1.5",                 {{"DL", d}, {"WL", d}, {"LL", d}, {"LR", d}}},
    {service, "(DL - WL + LL + LR)/1.5",                 {{"DL", d}, {"WL", -d}, {"LL", d}, {"LR", d}}},
    {service, "(DL + WL + LL + SL)/1.5",                 {{"DL", d}, {"WL", d}, {"LL", d}, {"SL", d}}},
    {service, "(DL - WL + LL + SL)/1.5",                 {{"DL", d}, {"WL", -d}, {"LL", d}, {"SL", d}}},
    {service, "(DL + WL + LL + RL)/1.5",                 {{"DL", d}, {"WL", d}, {"LL", d}, {"RL", d}}},
    {service, "(DL - WL + LL + RL)/1.5",                 {{"DL", d}, {"WL", -d}, {"LL", d}, {"RL", d}}},
    {service, "(DL + 0.7EL + LL + SL)/1.5",              {{"DL", d}, {"EL", e}, {"LL", d}, {"SL", d}}},
    {service, "(DL - 0.7EL + LL + SL)/1.5",              {{"DL", d}, {"EL", -e}, {"LL", d}, {"SL", d}}},
    {service, "(DL + WL + ((APH)EV+EH))/1.5",            {{"DL", d}, {"WL", d}, {"EV", d * alphaH}, {"EH", d}}},
    {service, "(DL - WL + ((APH)EV+EH))/1.5",            {{"DL", d}, {"WL", -d}, {"EV", d * alphaH}, {"EH", d}}},
    {service, "(DL + 0.7EL + ((APH)EV+EH))/1.5",         {{"DL", d}, {"EL", e}, {"EV", d * alphaH}, {"EH", d}}},
    {service, "(DL - 0.7EL + ((APH)EV+EH))/1.5",         {{"DL", d}, {"EL", -e}, {"EV", d * alphaH}, {"EH", d}}},
};

/// Up to the rows with wind.
const Rows fullToWind = {
    {strength, "1.4(DL+FP+EV)",                                  {{"DL", 1.4}, {"FP", 1.4}, {"EV", 1.4}}},
    {strength, "1.2(DL+FP) + 1.6(LL+((APH)EV+EH)) + 0.5LR",      {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 1.6}, {"LR", 0.5}}},
    {strength, "1.2(DL+FP) + 1.6(LL+((APH)EV+EH)) + 0.5SL",      {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 1.6}, {"SL", 0.5}}},
    {strength, "1.2(DL+FP) + 1.6(LL+((APH)EV+EH)) + 0.5RL",      {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 1.6}, {"RL", 0.5}}},
    {strength, "1.2DL + 1.6LR + 1.0LL",                          {{"DL", 1.2}, {"LR", 1.6}, {"LL", 1.0}}},
    {strength, "1.2DL + 1.6LR + 0.65WL",                         {{"DL", 1.2}, {"LR", 1.6}, {"WL", 0.65}}},
    {strength, "1.2DL + 1.6LR - 0.65WL",                         {{"DL", 1.2}, {"LR", 1.6}, {"WL", -0.65}}},
    {strength, "1.2DL + 1.6SL + 1.0LL",                          {{"DL", 1.2}, {"SL", 1.6}, {"LL", 1.0}}},
    {strength, "1.2DL + 1.6SL + 0.65WL",                         {{"DL", 1.2}, {"SL", 1.6}, {"WL", 0.65}}},
    {strength, "1.2DL + 1.6SL - 0.65WL",                         {{"DL", 1.2}, {"SL", 1.6}, {"WL", -0.65}}},
    {strength, "1.2DL + 1.6RL + 1.0LL",                          {{"DL", 1.2}, {"RL", 1.6}, {"LL", 1.0}}},
    {strength, "1.2DL + 1.6RL + 0.65WL",                         {{"DL", 1.2}, {"RL", 1.6}, {"WL", 0.65}}},
    {strength, "1.2DL + 1.6RL - 0.65WL",                         {{"DL", 1.2}, {"RL", 1.6}, {"WL", -0.65}}},
    {strength, "1.2DL + 1.3WL + 1.0LL + 0.5LR",                  {{"DL", 1.2}, {"WL", 1.3}, {"LL", 1.0}, {"LR", 0.5}}},
    {strength, "1.2DL - 1.3WL + 1.0LL + 0.5LR",                  {{"DL", 1.2}, {"WL", -1.3}, {"LL", 1.0}, {"LR", 0.5}}},
    {strength, "1.2DL + 1.3WL + 1.0LL + 0.5SL",                  {{"DL", 1.2}, {"WL", 1.3}, {"LL", 1.0}, {"SL", 0.5}}},
    {strength, "1.2DL - 1.3WL + 1.0LL + 0.5SL",                  {{"DL", 1.2}, {"WL", -1.3}, {"LL", 1.0}, {"SL", 0.5}}},
    {strength, "1.2DL + 1.3WL + 1.0LL + 0.5RL",                  {{"DL", 1.2}, {"WL", 1.3}, {"LL", 1.0}, {"RL", 0.5}}},
    {strength, "1.2DL - 1.3WL + 1.0LL + 0.5RL",                  {{"DL", 1.2}, {"WL", -1.3}, {"LL", 1.0}, {"RL", 0.5}}},
};

/// Earth pressure with the factor 0.8, then the least dead load with wind and alone.
const Rows fullEarthAndUplift = {
    {strength, "1.2(DL+FP) + 1.6(LL+(APH)EV) + 0.8EH + 0.5LR",   {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 0.8}, {"LR", 0.5}}},
    {strength, "1.2(DL+FP) + 1.6(LL+(APH)EV) + 0.8EH + 0.5SL",   {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 0.8}, {"SL", 0.5}}},
    {strength, "1.2(DL+FP) + 1.6(LL+(APH)EV) + 0.8EH + 0.5RL",   {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 0.8}, {"RL", 0.5}}},
    {strength, "0.9DL + 1.3WL + 1.6((APH)EV+EH)",                {{"DL", 0.9}, {"WL", 1.3}, {"EV", a}, {"EH", 1.6}}},
    {strength, "0.9DL - 1.3WL + 1.6((APH)EV+EH)",                {{"DL", 0.9}, {"WL", -1.3}, {"EV", a}, {"EH", 1.6}}},
    {strength, "0.9DL + 1.6((APH)EV+EH)",                        {{"DL", 0.9}, {"EV", a}, {"EH", 1.6}}},
};

const Rows fullPlainEarthquake = {
    {strength, "1.2DL + 1.0(SUF)EL + 1.0LL + 0.2SL",             {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {strength, "1.2DL - 1.0(SUF)EL + 1.0LL + 0.2SL",             {{"DL", 1.2}, {"EL", -1.0}, {"LL", 1.0}, {"SL", 0.2}}},
};
const Rows fullPlainOverturning = {
    {strength, "0.9DL + 1.0(SUF)EL + 1.6((APH)EV+EH)",           {{"DL", 0.9}, {"EL", 1.0}, {"EV", a}, {"EH", 1.6}}},
    {strength, "0.9DL - 1.0(SUF)EL + 1.6((APH)EV+EH)",           {{"DL", 0.9}, {"EL", -1.0}, {"EV", a}, {"EH", 1.6}}},
    {strength, "0.9DL + 1.6((APH)EV+EH)",                        {{"DL", 0.9}, {"EV", a}, {"EH", 1.6}}},
};

constexpr double up = 1.2 + S * V;
constexpr double down = 0.9 - S * V;

const Rows fullIncrementsEarthquake = {
    {strength, "1.2DL + 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)DL",     {{"DL", up}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {strength, "1.2DL - 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)DL",     {{"DL", up}, {"EL", -1.0}, {"LL", 1.0}, {"SL", 0.2}}},
};
const Rows fullIncrementsOverturning = {
    {strength, "0.9DL + 1.0(SUF)(OMG)EL + 1.6((APH)EV+EH) - (SPC)(ZEL)DL",   {{"DL", down}, {"EL", 1.0}, {"EV", a}, {"EH", 1.6}}},
    {strength, "0.9DL - 1.0(SUF)(OMG)EL + 1.6((APH)EV+EH) - (SPC)(ZEL)DL",   {{"DL", down}, {"EL", -1.0}, {"EV", a}, {"EH", 1.6}}},
    {strength, "0.9DL + 1.6((APH)EV+EH)",                                    {{"DL", 0.9}, {"EV", a}, {"EH", 1.6}}},
};

const Rows verticalPair = {
    {strength, "-(VER)DL + 1.0(SUF)EL",     {{"DL", -verticalForceFactor}, {"EL", 1.0}}},
    {strength, "-(VER)DL - 1.0(SUF)EL",     {{"DL", -verticalForceFactor}, {"EL", -1.0}}},
};

const char* const everyGroup = "DL LL LR WL EL SL EEP RL FP EP WP EH EV";

TEST(TablesKbcUsd09, EveryGroup)
{
    const Rows plain = joined({fullService, fullToWind, fullPlainEarthquake, fullEarthAndUplift, fullPlainOverturning});
    EXPECT_EQ(lines(rowsOf("KBC-USD09", everyGroup, 0)), lines(plain));
    EXPECT_EQ(lines(rowsOf("KBC-USD09", "DL LL LR WL EL SL RL FP EH EV", 0)), lines(plain)) << "EP, WP and EEP stand in no row";
    EXPECT_EQ(lines(rowsOf("KBC-USD09", everyGroup, 2)), lines(joined({plain, verticalPair})));
    EXPECT_EQ(lines(rowsOf("KBC-USD09", everyGroup, 1)),
              lines(joined({fullService, fullToWind, fullIncrementsEarthquake, fullEarthAndUplift, fullIncrementsOverturning})));
}

TEST(TablesKbcUsd09, UndergroundTypesGiveServiceRowsAlone)
{
    EXPECT_EQ(lines(rowsOf("KBC-USD09", everyGroup, 3)), lines(fullService));
    EXPECT_EQ(lines(rowsOf("KBC-USD09", everyGroup, 4)), lines(fullService));
}

TEST(TablesKbcUsd09, DeadLoadNamesFluidAndEarthThatHaveCases)
{
    const struct {
        const char* groups;
        HandedRow row;
    } expected[] = {
        {"DL",       {strength, "1.4DL",         {{"DL", 1.4}}}},
        {"DL FP",    {strength, "1.4(DL+FP)",    {{"DL", 1.4}, {"FP", 1.4}}}},
        {"DL EV",    {strength, "1.4(DL+EV)",    {{"DL", 1.4}, {"EV", 1.4}}}},
        {"DL FP EV", {strength, "1.4(DL+FP+EV)", {{"DL", 1.4}, {"FP", 1.4}, {"EV", 1.4}}}},
    };
    for (const auto& one : expected)
        EXPECT_EQ(lines(rowsWith("1.4", rowsOf("KBC-USD09", one.groups, 0))), lines({one.row})) << one.groups;
}

TEST(TablesKbcUsd09, EarthStandsInTheRowsWhenEitherOfItsGroupsHasCases)
{
    const std::vector<std::string> plusRowsWithEarth = {
        "(DL + WL + ((APH)EV+EH))/1.5", "(DL + 0.7EL + ((APH)EV+EH))/1.5",
        "0.9DL + 1.3WL + 1.6((APH)EV+EH)", "0.9DL + 1.6((APH)EV+EH)", "0.9DL + 1.0(SUF)EL + 1.6((APH)EV+EH)", "0.9DL + 1.6((APH)EV+EH)",
    };
    for (const char* groups : {"DL WL EL EV", "DL WL EL EH", "DL WL EL EV EH"}) {
        const Rows rows = plusRows(rowsWith("+ ((APH)", rowsOf("KBC-USD09", groups, 0)));
        const Rows strengthRows = plusRows(rowsWith("+ 1.6((APH)", rowsWith("0.9", rowsOf("KBC-USD09", groups, 0))));
        EXPECT_EQ(texts(joined({rows, strengthRows})), plusRowsWithEarth) << groups;
    }
    const Rows without = {
        {service,  "(DL+FP+EV)",                  {{"DL", 1.0}, {"FP", 1.0}, {"EV", 1.0}}},
        {service,  "(DL + WL)/1.5",               {{"DL", d}, {"WL", d}}},
        {service,  "(DL - WL)/1.5",               {{"DL", d}, {"WL", -d}}},
        {service,  "(DL + 0.7EL)/1.5",            {{"DL", d}, {"EL", e}}},
        {service,  "(DL - 0.7EL)/1.5",            {{"DL", d}, {"EL", -e}}},
        {service,  "(DL + WL)/1.5",               {{"DL", d}, {"WL", d}}},
        {service,  "(DL - WL)/1.5",               {{"DL", d}, {"WL", -d}}},
        {service,  "(DL + 0.7EL)/1.5",            {{"DL", d}, {"EL", e}}},
        {service,  "(DL - 0.7EL)/1.5",            {{"DL", d}, {"EL", -e}}},
        {strength, "1.4DL",                       {{"DL", 1.4}}},
        {strength, "1.2DL + 1.3WL",               {{"DL", 1.2}, {"WL", 1.3}}},
        {strength, "1.2DL - 1.3WL",               {{"DL", 1.2}, {"WL", -1.3}}},
        {strength, "1.2DL + 1.0(SUF)(OMG)EL + (SPC)(ZEL)DL", {{"DL", up}, {"EL", 1.0}}},
        {strength, "1.2DL - 1.0(SUF)(OMG)EL + (SPC)(ZEL)DL", {{"DL", up}, {"EL", -1.0}}},
        {strength, "0.9DL + 1.3WL",               {{"DL", 0.9}, {"WL", 1.3}}},
        {strength, "0.9DL - 1.3WL",               {{"DL", 0.9}, {"WL", -1.3}}},
        {strength, "0.9DL",                       {{"DL", 0.9}}},
        {strength, "0.9DL + 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL", {{"DL", down}, {"EL", 1.0}}},
        {strength, "0.9DL - 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL", {{"DL", down}, {"EL", -1.0}}},
        {strength, "0.9DL",                       {{"DL", 0.9}}},
    };
    EXPECT_EQ(lines(rowsOf("KBC-USD09", "DL WL EL", 1)), lines(without));
}

TEST(TablesKbcUsd09, EarthWithoutWindAndEarthquake)
{
    const Rows expected = {
        {service,  "(DL+FP+EV)",                             {{"DL", 1.0}, {"FP", 1.0}, {"EV", 1.0}}},
        {service,  "(DL+FP) + (LL+(APH)EV+EH)",              {{"DL", 1.0}, {"FP", 1.0}, {"LL", 1.0}, {"EV", alphaH}, {"EH", 1.0}}},
        {service,  "DL + ((APH)EV+EH)",                      {{"DL", 1.0}, {"EV", alphaH}, {"EH", 1.0}}},
        {strength, "1.4DL",                                  {{"DL", 1.4}}},
        {strength, "1.2(DL+FP) + 1.6(LL+((APH)EV+EH))",      {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 1.6}}},
        {strength, "0.9DL + 1.6((APH)EV+EH)",                {{"DL", 0.9}, {"EV", a}, {"EH", 1.6}}},
        {strength, "0.9DL + 1.6((APH)EV+EH)",                {{"DL", 0.9}, {"EV", a}, {"EH", 1.6}}},
    };
    EXPECT_EQ(lines(rowsOf("KBC-USD09", "DL EH", 0)), lines(expected));
}

TEST(TablesKbcUsd09, EarthquakeRowsNameLiveLoadAndSnowThatHaveCases)
{
    const struct {
        const char* groups;
        std::vector<std::string> texts;    ///< of the plus rows: service, then head 1.2
    } expected[] = {
        {"DL EL",       {"(DL + 0.7EL)/1.5", "1.2DL + 1.0(SUF)(OMG)EL + (SPC)(ZEL)DL"}},
        {"DL EL LL",    {"(DL + 0.7EL + LL)/1.5", "1.2DL + 1.0(SUF)(OMG)EL + 1.0LL + (SPC)(ZEL)DL"}},
        {"DL EL SL",    {"(DL + 0.7EL + SL)/1.5", "1.2DL + 1.0(SUF)(OMG)EL + 0.2SL + (SPC)(ZEL)DL"}},
        {"DL EL LL SL", {"(DL + 0.7EL + LL + SL)/1.5", "1.2DL + 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)DL"}},
        {"DL EL EH",    {"(DL + 0.7EL)/1.5", "1.2DL + 1.0(SUF)(OMG)EL + (SPC)(ZEL)DL"}},
    };
    for (const auto& row : expected) {
        const Rows special = rowsOf("KBC-USD09", row.groups, 1);
        const Rows firstService = {plusRows(serviceRowsWith("EL", special)).front()};
        EXPECT_EQ(texts(joined({firstService, plusRows(rowsWith("1.2DL", rowsWith("EL", special)))})), row.texts) << row.groups;

        std::string plain = replaced(row.texts[1], "(OMG)", "");
        plain.erase(plain.size() - std::string(" + (SPC)(ZEL)DL").size());
        const Rows plainRows = plusRows(rowsWith("1.2DL", rowsWith("EL", rowsOf("KBC-USD09", row.groups, 0))));
        EXPECT_EQ(texts(plainRows), std::vector<std::string>{plain}) << row.groups;
    }
}

}  // namespace
