#include "loadcomb/handed_rows.h"

#include <gtest/gtest.h>

// Which rows KCI-USD12 hands over, derived by hand from the printed rows.
namespace {

using namespace handed;

constexpr double d = 2.0 / 3.0;         // a term of a text that ends in /1.5
constexpr double e = 0.7 * (2.0 / 3.0);
constexpr double a = 1.6 * alphaH;      // (APH)EV beside 1.6

TEST(TablesKciUsd12, DeadAndLiveLoad)
{
    const Rows expected = {
        {service,  "(DL+FP)",                              {{"DL", 1.0}, {"FP", 1.0}}},
        {service,  "(DL+FP) + (LL+(APH)EV+EH)",            {{"DL", 1.0}, {"FP", 1.0}, {"LL", 1.0}, {"EV", alphaH}, {"EH", 1.0}}},
        {service,  "(DL+EV)",                              {{"DL", 1.0}, {"EV", 1.0}}},
        {strength, "1.4DL",                                {{"DL", 1.4}}},
        {strength, "1.2(DL+FP) + 1.6(LL+((APH)EV+EH))",    {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 1.6}}},
        {strength, "0.9(DL+EV)",                           {{"DL", 0.9}, {"EV", 0.9}}},
        {strength, "0.9(DL+EV)",                           {{"DL", 0.9}, {"EV", 0.9}}},
    };
    for (const int type : {0, 1, 2})
        EXPECT_EQ(lines(rowsOf("KCI-USD12", "DL LL", type)), lines(expected)) << "type " << type;
}

TEST(TablesKciUsd12, DeadLiveWindAndEarthquake)
{
    const Rows expected = {
        {service,  "(DL+FP)",                              {{"DL", 1.0}, {"FP", 1.0}}},
        {service,  "(DL+FP) + (LL+(APH)EV+EH)",            {{"DL", 1.0}, {"FP", 1.0}, {"LL", 1.0}, {"EV", alphaH}, {"EH", 1.0}}},
        {service,  "(DL + WL + LL)/1.5",                   {{"DL", d}, {"WL", d}, {"LL", d}}},
        {service,  "(DL - WL + LL)/1.5",                   {{"DL", d}, {"WL", -d}, {"LL", d}}},
        {service,  "((DL+EV) + 0.7EL + LL)/1.5",           {{"DL", d}, {"EV", d}, {"EL", e}, {"LL", d}}},
        {service,  "((DL+EV) - 0.7EL + LL)/1.5",           {{"DL", d}, {"EV", d}, {"EL", -e}, {"LL", d}}},
        {service,  "((DL+EV) + WL)/1.5",                   {{"DL", d}, {"EV", d}, {"WL", d}}},
        {service,  "((DL+EV) - WL)/1.5",                   {{"DL", d}, {"EV", d}, {"WL", -d}}},
        {service,  "((DL+EV) + 0.7EL)/1.5",                {{"DL", d}, {"EV", d}, {"EL", e}}},
        {service,  "((DL+EV) - 0.7EL)/1.5",                {{"DL", d}, {"EV", d}, {"EL", -e}}},
        {strength, "1.4DL",                                {{"DL", 1.4}}},
        {strength, "1.2(DL+FP) + 1.6(LL+((APH)EV+EH))",    {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 1.6}}},
        {strength, "1.2DL + 1.3WL + 1.0LL",                {{"DL", 1.2}, {"WL", 1.3}, {"LL", 1.0}}},
        {strength, "1.2DL - 1.3WL + 1.0LL",                {{"DL", 1.2}, {"WL", -1.3}, {"LL", 1.0}}},
        {strength, "1.2DL + 1.0(SUF)EL + 1.0LL",           {{"DL", 1.2}, {"EL", 1.0}, {"LL", 1.0}}},
        {strength, "1.2DL - 1.0(SUF)EL + 1.0LL",           {{"DL", 1.2}, {"EL", -1.0}, {"LL", 1.0}}},
        {strength, "0.9(DL+EV) + 1.3WL",                   {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.3}}},
        {strength, "0.9(DL+EV) - 1.3WL",                   {{"DL", 0.9}, {"EV", 0.9}, {"WL", -1.3}}},
        {strength, "0.9(DL+EV) + 1.0(SUF)EL",              {{"DL", 0.9}, {"EV", 0.9}, {"EL", 1.0}}},
        {strength, "0.9(DL+EV) - 1.0(SUF)EL",              {{"DL", 0.9}, {"EV", 0.9}, {"EL", -1.0}}},
    };
    EXPECT_EQ(lines(rowsOf("KCI-USD12", "DL LL WL EL", 0)), lines(expected));
}

const Rows fullService = {
    {service, "(DL+FP)",                                 {{"DL", 1.0}, {"FP", 1.0}}},
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
    {service, "((DL+EV) + 0.7EL + LL + SL + EH)/1.5",    {{"DL", d}, {"EV", d}, {"EL", e}, {"LL", d}, {"SL", d}, {"EH", d}}},
    {service, "((DL+EV) - 0.7EL + LL + SL + EH)/1.5",    {{"DL", d}, {"EV", d}, {"EL", -e}, {"LL", d}, {"SL", d}, {"EH", d}}},
    {service, "((DL+EV) + WL + EH)/1.5",                 {{"DL", d}, {"EV", d}, {"WL", d}, {"EH", d}}},
    {service, "((DL+EV) - WL + EH)/1.5",                 {{"DL", d}, {"EV", d}, {"WL", -d}, {"EH", d}}},
    {service, "((DL+EV) + 0.7EL + EH)/1.5",              {{"DL", d}, {"EV", d}, {"EL", e}, {"EH", d}}},
    {service, "((DL+EV) - 0.7EL + EH)/1.5",              {{"DL", d}, {"EV", d}, {"EL", -e}, {"EH", d}}},
};

/// Up to the rows with wind.
const Rows fullToWind = {
    {strength, "1.4(DL+FP)",                                     {{"DL", 1.4}, {"FP", 1.4}}},
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

/// Earth pressure with the factor 0.8, then the least dead load with wind.
const Rows fullEarthAndUplift = {
    {strength, "1.2(DL+FP) + 1.6(LL+(APH)EV) + 0.8EH + 0.5LR",   {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 0.8}, {"LR", 0.5}}},
    {strength, "1.2(DL+FP) + 1.6(LL+(APH)EV) + 0.8EH + 0.5SL",   {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 0.8}, {"SL", 0.5}}},
    {strength, "1.2(DL+FP) + 1.6(LL+(APH)EV) + 0.8EH + 0.5RL",   {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 0.8}, {"RL", 0.5}}},
    {strength, "0.9(DL+EV) + 1.3WL + 1.6EH",                     {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.3}, {"EH", 1.6}}},
    {strength, "0.9(DL+EV) - 1.3WL + 1.6EH",                     {{"DL", 0.9}, {"EV", 0.9}, {"WL", -1.3}, {"EH", 1.6}}},
    {strength, "0.9(DL+EV) + 1.3WL + 0.8EH",                     {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.3}, {"EH", 0.8}}},
    {strength, "0.9(DL+EV) - 1.3WL + 0.8EH",                     {{"DL", 0.9}, {"EV", 0.9}, {"WL", -1.3}, {"EH", 0.8}}},
};

const Rows fullPlainEarthquake = {
    {strength, "1.2(DL+EV) + 1.0(SUF)EL + 1.0LL + 0.2SL + 1.0EH",    {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {strength, "1.2(DL+EV) - 1.0(SUF)EL + 1.0LL + 0.2SL + 1.0EH",    {{"DL", 1.2}, {"EV", 1.2}, {"EL", -1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {strength, "1.2(DL+EV) + 1.0(SUF)EL + 1.0LL + 0.2SL + 0.5EH",    {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
    {strength, "1.2(DL+EV) - 1.0(SUF)EL + 1.0LL + 0.2SL + 0.5EH",    {{"DL", 1.2}, {"EV", 1.2}, {"EL", -1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
};
const Rows fullPlainOverturning = {
    {strength, "0.9(DL+EV) + 1.0(SUF)EL + 1.0EH",                {{"DL", 0.9}, {"EV", 0.9}, {"EL", 1.0}, {"EH", 1.0}}},
    {strength, "0.9(DL+EV) - 1.0(SUF)EL + 1.0EH",                {{"DL", 0.9}, {"EV", 0.9}, {"EL", -1.0}, {"EH", 1.0}}},
    {strength, "0.9(DL+EV) + 1.0(SUF)EL + 0.5EH",                {{"DL", 0.9}, {"EV", 0.9}, {"EL", 1.0}, {"EH", 0.5}}},
    {strength, "0.9(DL+EV) - 1.0(SUF)EL + 0.5EH",                {{"DL", 0.9}, {"EV", 0.9}, {"EL", -1.0}, {"EH", 0.5}}},
};

constexpr double up = 1.2 + S * V;
constexpr double down = 0.9 - S * V;

const Rows fullIncrementsEarthquake = {
    {strength, "1.2(DL+EV) + 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + 1.0EH + (SPC)(ZEL)DL",
        {{"DL", up}, {"EV", up}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {strength, "1.2(DL+EV) - 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + 1.0EH + (SPC)(ZEL)DL",
        {{"DL", up}, {"EV", up}, {"EL", -1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 1.0}}},
    {strength, "1.2(DL+EV) + 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + 0.5EH + (SPC)(ZEL)DL",
        {{"DL", up}, {"EV", up}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
    {strength, "1.2(DL+EV) - 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + 0.5EH + (SPC)(ZEL)DL",
        {{"DL", up}, {"EV", up}, {"EL", -1.0}, {"LL", 1.0}, {"SL", 0.2}, {"EH", 0.5}}},
};
const Rows fullIncrementsOverturning = {
    {strength, "0.9(DL+EV) + 1.0(SUF)(OMG)EL + 1.0EH - (SPC)(ZEL)DL",    {{"DL", down}, {"EV", down}, {"EL", 1.0}, {"EH", 1.0}}},
    {strength, "0.9(DL+EV) - 1.0(SUF)(OMG)EL + 1.0EH - (SPC)(ZEL)DL",    {{"DL", down}, {"EV", down}, {"EL", -1.0}, {"EH", 1.0}}},
    {strength, "0.9(DL+EV) + 1.0(SUF)(OMG)EL + 0.5EH - (SPC)(ZEL)DL",    {{"DL", down}, {"EV", down}, {"EL", 1.0}, {"EH", 0.5}}},
    {strength, "0.9(DL+EV) - 1.0(SUF)(OMG)EL + 0.5EH - (SPC)(ZEL)DL",    {{"DL", down}, {"EV", down}, {"EL", -1.0}, {"EH", 0.5}}},
};

const Rows verticalPair = {
    {strength, "-(VER)DL + 1.0(SUF)EL",     {{"DL", -verticalForceFactor}, {"EL", 1.0}}},
    {strength, "-(VER)DL - 1.0(SUF)EL",     {{"DL", -verticalForceFactor}, {"EL", -1.0}}},
};

const char* const everyGroup = "DL LL LR WL EL SL EEP RL FP EP WP EH EV";

TEST(TablesKciUsd12, EveryGroup)
{
    const Rows plain = joined({fullService, fullToWind, fullPlainEarthquake, fullEarthAndUplift, fullPlainOverturning});
    EXPECT_EQ(lines(rowsOf("KCI-USD12", everyGroup, 0)), lines(plain));
    EXPECT_EQ(lines(rowsOf("KCI-USD12", "DL LL LR WL EL SL RL FP EH EV", 0)), lines(plain)) << "EP, WP and EEP stand in no row";
    EXPECT_EQ(lines(rowsOf("KCI-USD12", everyGroup, 2)), lines(joined({plain, verticalPair})));
    EXPECT_EQ(lines(rowsOf("KCI-USD12", everyGroup, 1)),
              lines(joined({fullService, fullToWind, fullIncrementsEarthquake, fullEarthAndUplift, fullIncrementsOverturning})));
}

TEST(TablesKciUsd12, UndergroundTypesGiveServiceRowsAlone)
{
    EXPECT_EQ(lines(rowsOf("KCI-USD12", everyGroup, 3)), lines(fullService));
    EXPECT_EQ(lines(rowsOf("KCI-USD12", everyGroup, 4)), lines(fullService));
}

TEST(TablesKciUsd12, ServiceEarthquakeRowsNameTheTermsThatHaveCases)
{
    const struct {
        const char* groups;
        const char* plus;         ///< with EL and the terms
        const char* plusEarth;    ///< with EL and EH alone
    } expected[] = {
        {"DL EL",             "((DL+EV) + 0.7EL)/1.5",                "((DL+EV) + 0.7EL)/1.5"},
        {"DL EL LL",          "((DL+EV) + 0.7EL + LL)/1.5",           "((DL+EV) + 0.7EL)/1.5"},
        {"DL EL SL",          "((DL+EV) + 0.7EL + SL)/1.5",           "((DL+EV) + 0.7EL)/1.5"},
        {"DL EL EH",          "((DL+EV) + 0.7EL + EH)/1.5",           "((DL+EV) + 0.7EL + EH)/1.5"},
        {"DL EL LL SL",       "((DL+EV) + 0.7EL + LL + SL)/1.5",      "((DL+EV) + 0.7EL)/1.5"},
        {"DL EL LL EH",       "((DL+EV) + 0.7EL + LL + EH)/1.5",      "((DL+EV) + 0.7EL + EH)/1.5"},
        {"DL EL SL EH",       "((DL+EV) + 0.7EL + SL + EH)/1.5",      "((DL+EV) + 0.7EL + EH)/1.5"},
        {"DL EL LL SL EH",    "((DL+EV) + 0.7EL + LL + SL + EH)/1.5", "((DL+EV) + 0.7EL + EH)/1.5"},
        {"DL EL LR RL",       "((DL+EV) + 0.7EL)/1.5",                "((DL+EV) + 0.7EL)/1.5"},
    };
    for (const auto& row : expected) {
        const Rows rows = serviceRowsWith("EL", rowsOf("KCI-USD12", row.groups, 0));
        ASSERT_EQ(rows.size(), 4U) << row.groups;
        EXPECT_EQ(rows[0].text, row.plus);
        EXPECT_EQ(rows[2].text, row.plusEarth);
    }
}

TEST(TablesKciUsd12, EarthquakeHeadAndTermsNameTheGroupsThatHaveCases)
{
    const struct {
        const char* groups;
        std::vector<std::string> texts;    ///< of the plus rows: head 1.2, then 0.9
    } plain[] = {
        {"DL EL",             {"1.2DL + 1.0(SUF)EL", "0.9(DL+EV) + 1.0(SUF)EL"}},
        {"DL EL LL",          {"1.2DL + 1.0(SUF)EL + 1.0LL", "0.9(DL+EV) + 1.0(SUF)EL"}},
        {"DL EL SL",          {"1.2DL + 1.0(SUF)EL + 0.2SL", "0.9(DL+EV) + 1.0(SUF)EL"}},
        {"DL EL LL SL",       {"1.2DL + 1.0(SUF)EL + 1.0LL + 0.2SL", "0.9(DL+EV) + 1.0(SUF)EL"}},
        {"DL EL EV",          {"1.2(DL+EV) + 1.0(SUF)EL", "0.9(DL+EV) + 1.0(SUF)EL"}},
        {"DL EL EV LL",       {"1.2(DL+EV) + 1.0(SUF)EL + 1.0LL", "0.9(DL+EV) + 1.0(SUF)EL"}},
        {"DL EL EV SL",       {"1.2(DL+EV) + 1.0(SUF)EL + 0.2SL", "0.9(DL+EV) + 1.0(SUF)EL"}},
        {"DL EL EH",          {"1.2DL + 1.0(SUF)EL + 1.0EH", "1.2DL + 1.0(SUF)EL + 0.5EH",
                               "0.9(DL+EV) + 1.0(SUF)EL + 1.0EH", "0.9(DL+EV) + 1.0(SUF)EL + 0.5EH"}},
        {"DL EL EH LL",       {"1.2DL + 1.0(SUF)EL + 1.0LL + 1.0EH", "1.2DL + 1.0(SUF)EL + 1.0LL + 0.5EH",
                               "0.9(DL+EV) + 1.0(SUF)EL + 1.0EH", "0.9(DL+EV) + 1.0(SUF)EL + 0.5EH"}},
        {"DL EL EH SL",       {"1.2DL + 1.0(SUF)EL + 0.2SL + 1.0EH", "1.2DL + 1.0(SUF)EL + 0.2SL + 0.5EH",
                               "0.9(DL+EV) + 1.0(SUF)EL + 1.0EH", "0.9(DL+EV) + 1.0(SUF)EL + 0.5EH"}},
        {"DL EL EH LL SL",    {"1.2DL + 1.0(SUF)EL + 1.0LL + 0.2SL + 1.0EH", "1.2DL + 1.0(SUF)EL + 1.0LL + 0.2SL + 0.5EH",
                               "0.9(DL+EV) + 1.0(SUF)EL + 1.0EH", "0.9(DL+EV) + 1.0(SUF)EL + 0.5EH"}},
        {"DL EL EV EH",       {"1.2(DL+EV) + 1.0(SUF)EL + 1.0EH", "1.2(DL+EV) + 1.0(SUF)EL + 0.5EH",
                               "0.9(DL+EV) + 1.0(SUF)EL + 1.0EH", "0.9(DL+EV) + 1.0(SUF)EL + 0.5EH"}},
        {"DL EL EV EH LL",    {"1.2(DL+EV) + 1.0(SUF)EL + 1.0LL + 1.0EH", "1.2(DL+EV) + 1.0(SUF)EL + 1.0LL + 0.5EH",
                               "0.9(DL+EV) + 1.0(SUF)EL + 1.0EH", "0.9(DL+EV) + 1.0(SUF)EL + 0.5EH"}},
        {"DL EL EV EH SL",    {"1.2(DL+EV) + 1.0(SUF)EL + 0.2SL + 1.0EH", "1.2(DL+EV) + 1.0(SUF)EL + 0.2SL + 0.5EH",
                               "0.9(DL+EV) + 1.0(SUF)EL + 1.0EH", "0.9(DL+EV) + 1.0(SUF)EL + 0.5EH"}},
    };
    for (const auto& row : plain) {
        EXPECT_EQ(texts(plusRows(strengthRowsWith("EL", rowsOf("KCI-USD12", row.groups, 0)))), row.texts) << row.groups;

        // With increments each text gains (OMG) and the tail, which names DL alone whatever the head names.
        std::vector<std::string> withIncrements;
        for (const std::string& text : row.texts)
            withIncrements.push_back(replaced(text, "(SUF)EL", "(SUF)(OMG)EL") + (text.front() == '1' ? " + (SPC)(ZEL)DL" : " - (SPC)(ZEL)DL"));
        const Rows special = plusRows(strengthRowsWith("EL", rowsOf("KCI-USD12", row.groups, 1)));
        EXPECT_EQ(texts(special), withIncrements) << row.groups;
        for (const HandedRow& one : special) {
            for (const auto& [group, factor] : one.factors) {
                if (group == "DL" || group == "EV") {
                    EXPECT_EQ(factor, one.text.front() == '1' ? up : down) << one.text;
                }
            }
        }
    }
}

TEST(TablesKciUsd12, EarthPressureWithoutWindAndEarthquake)
{
    const Rows expected = {
        {service,  "(DL+FP)",                                {{"DL", 1.0}, {"FP", 1.0}}},
        {service,  "(DL+FP) + (LL+(APH)EV+EH)",              {{"DL", 1.0}, {"FP", 1.0}, {"LL", 1.0}, {"EV", alphaH}, {"EH", 1.0}}},
        {service,  "(DL+EV) + EH",                           {{"DL", 1.0}, {"EV", 1.0}, {"EH", 1.0}}},
        {strength, "1.4DL",                                  {{"DL", 1.4}}},
        {strength, "1.2(DL+FP) + 1.6(LL+((APH)EV+EH))",      {{"DL", 1.2}, {"FP", 1.2}, {"LL", 1.6}, {"EV", a}, {"EH", 1.6}}},
        {strength, "0.9(DL+EV) + 1.6EH",                     {{"DL", 0.9}, {"EV", 0.9}, {"EH", 1.6}}},
        {strength, "0.9(DL+EV) + 0.8EH",                     {{"DL", 0.9}, {"EV", 0.9}, {"EH", 0.8}}},
        {strength, "0.9(DL+EV) + 1.0EH ",                    {{"DL", 0.9}, {"EV", 0.9}, {"EH", 1.0}}},    // the blank at the end is meant
        {strength, "0.9(DL+EV) + 0.5EH ",                    {{"DL", 0.9}, {"EV", 0.9}, {"EH", 0.5}}},
    };
    EXPECT_EQ(lines(rowsOf("KCI-USD12", "DL EV EH", 0)), lines(expected));
    EXPECT_EQ(lines(rowsOf("KCI-USD12", "DL EV EH", 1)), lines(expected)) << "increments need EL";
}

TEST(TablesKciUsd12, RoofWithoutLiveLoadAndWind)
{
    const Rows expected = {
        {service,  "(DL+FP)",                                {{"DL", 1.0}, {"FP", 1.0}}},
        {service,  "DL + RL",                                {{"DL", 1.0}, {"RL", 1.0}}},
        {service,  "(DL+EV)",                                {{"DL", 1.0}, {"EV", 1.0}}},
        {strength, "1.4(DL+FP)",                             {{"DL", 1.4}, {"FP", 1.4}}},
        {strength, "1.2DL + 1.6RL",                          {{"DL", 1.2}, {"RL", 1.6}}},
        {strength, "0.9(DL+EV)",                             {{"DL", 0.9}, {"EV", 0.9}}},
        {strength, "0.9(DL+EV)",                             {{"DL", 0.9}, {"EV", 0.9}}},
    };
    EXPECT_EQ(lines(rowsOf("KCI-USD12", "DL RL FP", 0)), lines(expected));
}

TEST(TablesKciUsd12, WindRowsNameTheLiveLoadsThatHaveCases)
{
    const struct {
        const char* groups;
        std::vector<std::string> texts;    ///< of the plus rows
    } expected[] = {
        {"DL WL",       {"(DL + WL)/1.5", "((DL+EV) + WL)/1.5", "1.2DL + 1.3WL", "0.9(DL+EV) + 1.3WL"}},
        {"DL WL LL",    {"(DL + WL + LL)/1.5", "((DL+EV) + WL)/1.5", "1.2DL + 1.3WL + 1.0LL", "0.9(DL+EV) + 1.3WL"}},
        {"DL WL LR",    {"(DL + LR + WL)/1.5", "(DL + WL + LR)/1.5", "((DL+EV) + WL)/1.5",
                         "1.2DL + 1.6LR + 0.65WL", "1.2DL + 1.3WL + 0.5LR", "0.9(DL+EV) + 1.3WL"}},
        {"DL WL LL SL", {"(DL + SL + WL)/1.5", "(DL + WL + LL + SL)/1.5", "((DL+EV) + WL)/1.5",
                         "1.2DL + 1.6SL + 0.65WL", "1.2DL + 1.3WL + 1.0LL + 0.5SL", "0.9(DL+EV) + 1.3WL"}},
        {"DL WL EH",    {"(DL + WL)/1.5", "((DL+EV) + WL + EH)/1.5", "1.2DL + 1.3WL", "0.9(DL+EV) + 1.3WL + 1.6EH", "0.9(DL+EV) + 1.3WL + 0.8EH"}},
    };
    for (const auto& row : expected) {
        const Rows rows = rowsWith("WL", rowsOf("KCI-USD12", row.groups, 0));
        EXPECT_EQ(texts(plusRows(rows)), row.texts) << row.groups;
        EXPECT_EQ(rows.size(), 2 * row.texts.size()) << row.groups << ": each has its minus";
    }
}

TEST(TablesKciUsd12, SeismicFactorsAreReadBehindTheServiceRows)
{
    bool read = false;
    for (const zel::codes::Part& part : zel::codes::findCode("KCI-USD12")->table->parts) {
        EXPECT_FALSE(zel::codes::reads(part.reads, zel::codes::Reads::windSets));
        EXPECT_FALSE(zel::codes::reads(part.reads, zel::codes::Reads::undergroundSets));
        if (zel::codes::reads(part.reads, zel::codes::Reads::seismicFactors)) {
            EXPECT_FALSE(read) << "once";
            read = true;
        }
        for (const zel::codes::Row& row : part.rows)
            EXPECT_EQ(row.flag == strength, read) << row.text;
    }
    EXPECT_TRUE(read);
}

}  // namespace
