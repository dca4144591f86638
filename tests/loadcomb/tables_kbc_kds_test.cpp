#include "loadcomb/handed_rows.h"

#include <gtest/gtest.h>

// Which rows the one sequence of KBC-USD16, KDS 41 30 : 2018 and KDS 41 20 : 2022 hands over, derived by hand from the printed rows.
namespace {

using namespace handed;
using zel::codes::findCode;
using zel::codes::Reads;
using zel::codes::reads;

// The codes with the wind numbers 0.85, 0.65, 1.3 give the same rows.
const char* const firstWindScale[] = {"KBC-USD16", "KDS 41 30 : 2018"};

TEST(TablesKbcKds, DeadAndLiveLoadGiveTwoServiceAndTwoStrengthRows)
{
    const Rows expected = {
        {service,  "(DL+EV)",             {{"DL", 1.0}, {"EV", 1.0}}},
        {service,  "(DL+EV) + LL",        {{"DL", 1.0}, {"EV", 1.0}, {"LL", 1.0}}},
        {strength, "1.4(DL)",             {{"DL", 1.4}}},
        {strength, "1.2(DL+EV) + 1.6LL",  {{"DL", 1.2}, {"EV", 1.2}, {"LL", 1.6}}},
    };
    for (const char* code : {"KBC-USD16", "KDS 41 30 : 2018", "KDS 41 20 : 2022"}) {
        for (const int type : {0, 1, 2, 3, 4})
            EXPECT_EQ(lines(rowsOf(code, "DL LL", type)), lines(expected)) << code << ", type " << type;
    }
}

TEST(TablesKbcKds, DeadLiveWindAndEarthquake)
{
    const Rows expected = {
        {service,  "(DL+EV)",                                        {{"DL", 1.0}, {"EV", 1.0}}},
        {service,  "(DL+EV) + LL",                                   {{"DL", 1.0}, {"EV", 1.0}, {"LL", 1.0}}},
        {service,  "(DL+EV) + 0.85WL",                               {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.85}}},
        {service,  "(DL+EV) - 0.85WL",                               {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.85}}},
        {service,  "(DL+EV) + 0.7(SUF)EL",                           {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.7}}},
        {service,  "(DL+EV) - 0.7(SUF)EL",                           {{"DL", 1.0}, {"EV", 1.0}, {"EL", -0.7}}},
        {service,  "1.0(DL+EV) + (0.75*0.85)WL + 0.75LL",            {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.6375}, {"LL", 0.75}}},
        {service,  "1.0(DL+EV) - (0.75*0.85)WL + 0.75LL",            {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.6375}, {"LL", 0.75}}},
        {service,  "1.0(DL+EV) + (0.75*0.70)(SUF)EL + 0.75LL",       {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.525}, {"LL", 0.75}}},
        {service,  "1.0(DL+EV) - (0.75*0.70)(SUF)EL + 0.75LL",       {{"DL", 1.0}, {"EV", 1.0}, {"EL", -0.525}, {"LL", 0.75}}},
        {service,  "0.6(DL+EV) + 0.85WL",                            {{"DL", 0.6}, {"EV", 0.6}, {"WL", 0.85}}},
        {service,  "0.6(DL+EV) - 0.85WL",                            {{"DL", 0.6}, {"EV", 0.6}, {"WL", -0.85}}},
        {service,  "0.6(DL+EV) + 0.7(SUF)EL",                        {{"DL", 0.6}, {"EV", 0.6}, {"EL", 0.7}}},
        {service,  "0.6(DL+EV) - 0.7(SUF)EL",                        {{"DL", 0.6}, {"EV", 0.6}, {"EL", -0.7}}},
        {strength, "1.4(DL)",                                        {{"DL", 1.4}}},
        {strength, "1.2(DL+EV) + 1.6LL",                             {{"DL", 1.2}, {"EV", 1.2}, {"LL", 1.6}}},
        {strength, "1.2(DL+EV) + 1.3WL + 1.0LL",                     {{"DL", 1.2}, {"EV", 1.2}, {"WL", 1.3}, {"LL", 1.0}}},
        {strength, "1.2(DL+EV) - 1.3WL + 1.0LL",                     {{"DL", 1.2}, {"EV", 1.2}, {"WL", -1.3}, {"LL", 1.0}}},
        {strength, "1.2(DL+EV) + 1.0(SUF)EL + 1.0LL",                {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}}},
        {strength, "1.2(DL+EV) - 1.0(SUF)EL + 1.0LL",                {{"DL", 1.2}, {"EV", 1.2}, {"EL", -1.0}, {"LL", 1.0}}},
        {strength, "0.9(DL+EV) + 1.3WL",                             {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.3}}},
        {strength, "0.9(DL+EV) - 1.3WL",                             {{"DL", 0.9}, {"EV", 0.9}, {"WL", -1.3}}},
        {strength, "0.9(DL+EV) + 1.0(SUF)EL",                        {{"DL", 0.9}, {"EV", 0.9}, {"EL", 1.0}}},
        {strength, "0.9(DL+EV) - 1.0(SUF)EL",                        {{"DL", 0.9}, {"EV", 0.9}, {"EL", -1.0}}},
    };
    for (const char* code : firstWindScale)
        EXPECT_EQ(lines(rowsOf(code, "DL LL WL EL", 0)), lines(expected)) << code;
}

/// S1 to S8 of a model with every group, for the wind numbers 0.85 and 0.75*0.85.
const Rows fullService = {
    {service, "(DL+EV)",                                             {{"DL", 1.0}, {"EV", 1.0}}},
    {service, "(DL+EV) + LL",                                        {{"DL", 1.0}, {"EV", 1.0}, {"LL", 1.0}}},
    {service, "1.0(DL+EV) + 1.0LR",                                  {{"DL", 1.0}, {"EV", 1.0}, {"LR", 1.0}}},
    {service, "1.0(DL+EV) + 1.0SL",                                  {{"DL", 1.0}, {"EV", 1.0}, {"SL", 1.0}}},
    {service, "1.0(DL+EV) + 1.0RL",                                  {{"DL", 1.0}, {"EV", 1.0}, {"RL", 1.0}}},
    {service, "1.0(DL+EV) + 0.75LL + 0.75LR",                        {{"DL", 1.0}, {"EV", 1.0}, {"LL", 0.75}, {"LR", 0.75}}},
    {service, "1.0(DL+EV) + 0.75LL + 0.75SL",                        {{"DL", 1.0}, {"EV", 1.0}, {"LL", 0.75}, {"SL", 0.75}}},
    {service, "1.0(DL+EV) + 0.75LL + 0.75RL",                        {{"DL", 1.0}, {"EV", 1.0}, {"LL", 0.75}, {"RL", 0.75}}},
    {service, "(DL+EV) + 0.85WL",                                    {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.85}}},
    {service, "(DL+EV) - 0.85WL",                                    {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.85}}},
    {service, "(DL+EV) + 0.7(SUF)EL",                                {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.7}}},
    {service, "(DL+EV) - 0.7(SUF)EL",                                {{"DL", 1.0}, {"EV", 1.0}, {"EL", -0.7}}},
    {service, "1.0(DL+EV) + (0.75*0.85)WL + 0.75LL + 0.75LR",        {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.6375}, {"LL", 0.75}, {"LR", 0.75}}},
    {service, "1.0(DL+EV) - (0.75*0.85)WL + 0.75LL + 0.75LR",        {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.6375}, {"LL", 0.75}, {"LR", 0.75}}},
    {service, "1.0(DL+EV) + (0.75*0.85)WL + 0.75LL + 0.75SL",        {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.6375}, {"LL", 0.75}, {"SL", 0.75}}},
    {service, "1.0(DL+EV) - (0.75*0.85)WL + 0.75LL + 0.75SL",        {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.6375}, {"LL", 0.75}, {"SL", 0.75}}},
    {service, "1.0(DL+EV) + (0.75*0.85)WL + 0.75LL + 0.75RL",        {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.6375}, {"LL", 0.75}, {"RL", 0.75}}},
    {service, "1.0(DL+EV) - (0.75*0.85)WL + 0.75LL + 0.75RL",        {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.6375}, {"LL", 0.75}, {"RL", 0.75}}},
    {service, "1.0(DL+EV) + (0.75*0.70)(SUF)EL + 0.75LL + 0.75LR",   {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.525}, {"LL", 0.75}, {"LR", 0.75}}},
    {service, "1.0(DL+EV) - (0.75*0.70)(SUF)EL + 0.75LL + 0.75LR",   {{"DL", 1.0}, {"EV", 1.0}, {"EL", -0.525}, {"LL", 0.75}, {"LR", 0.75}}},
    {service, "1.0(DL+EV) + (0.75*0.70)(SUF)EL + 0.75LL + 0.75SL",   {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.525}, {"LL", 0.75}, {"SL", 0.75}}},
    {service, "1.0(DL+EV) - (0.75*0.70)(SUF)EL + 0.75LL + 0.75SL",   {{"DL", 1.0}, {"EV", 1.0}, {"EL", -0.525}, {"LL", 0.75}, {"SL", 0.75}}},
    {service, "1.0(DL+EV) + (0.75*0.70)(SUF)EL + 0.75LL + 0.75RL",   {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.525}, {"LL", 0.75}, {"RL", 0.75}}},
    {service, "1.0(DL+EV) - (0.75*0.70)(SUF)EL + 0.75LL + 0.75RL",   {{"DL", 1.0}, {"EV", 1.0}, {"EL", -0.525}, {"LL", 0.75}, {"RL", 0.75}}},
    {service, "0.6(DL+EV) + 0.85WL",                                 {{"DL", 0.6}, {"EV", 0.6}, {"WL", 0.85}}},
    {service, "0.6(DL+EV) - 0.85WL",                                 {{"DL", 0.6}, {"EV", 0.6}, {"WL", -0.85}}},
    {service, "0.6(DL+EV) + 0.7(SUF)EL",                             {{"DL", 0.6}, {"EV", 0.6}, {"EL", 0.7}}},
    {service, "0.6(DL+EV) - 0.7(SUF)EL",                             {{"DL", 0.6}, {"EV", 0.6}, {"EL", -0.7}}},
};

/// U1 to U4 of a model with every group.
const Rows fullLiveRoofWind = {
    {strength, "1.4(DL+EV)",                                         {{"DL", 1.4}, {"EV", 1.4}}},
    {strength, "1.2(DL+EV) + 1.6LL + 0.5LR",                         {{"DL", 1.2}, {"EV", 1.2}, {"LL", 1.6}, {"LR", 0.5}}},
    {strength, "1.2(DL+EV) + 1.6LL + 0.5SL",                         {{"DL", 1.2}, {"EV", 1.2}, {"LL", 1.6}, {"SL", 0.5}}},
    {strength, "1.2(DL+EV) + 1.6LL + 0.5RL",                         {{"DL", 1.2}, {"EV", 1.2}, {"LL", 1.6}, {"RL", 0.5}}},
    {strength, "1.2(DL+EV) + 1.6LR + 1.0LL",                         {{"DL", 1.2}, {"EV", 1.2}, {"LR", 1.6}, {"LL", 1.0}}},
    {strength, "1.2(DL+EV) + 1.6LR + 0.65WL",                        {{"DL", 1.2}, {"EV", 1.2}, {"LR", 1.6}, {"WL", 0.65}}},
    {strength, "1.2(DL+EV) + 1.6LR - 0.65WL",                        {{"DL", 1.2}, {"EV", 1.2}, {"LR", 1.6}, {"WL", -0.65}}},
    {strength, "1.2(DL+EV) + 1.6SL + 1.0LL",                         {{"DL", 1.2}, {"EV", 1.2}, {"SL", 1.6}, {"LL", 1.0}}},
    {strength, "1.2(DL+EV) + 1.6SL + 0.65WL",                        {{"DL", 1.2}, {"EV", 1.2}, {"SL", 1.6}, {"WL", 0.65}}},
    {strength, "1.2(DL+EV) + 1.6SL - 0.65WL",                        {{"DL", 1.2}, {"EV", 1.2}, {"SL", 1.6}, {"WL", -0.65}}},
    {strength, "1.2(DL+EV) + 1.6RL + 1.0LL",                         {{"DL", 1.2}, {"EV", 1.2}, {"RL", 1.6}, {"LL", 1.0}}},
    {strength, "1.2(DL+EV) + 1.6RL + 0.65WL",                        {{"DL", 1.2}, {"EV", 1.2}, {"RL", 1.6}, {"WL", 0.65}}},
    {strength, "1.2(DL+EV) + 1.6RL - 0.65WL",                        {{"DL", 1.2}, {"EV", 1.2}, {"RL", 1.6}, {"WL", -0.65}}},
    {strength, "1.2(DL+EV) + 1.3WL + 1.0LL + 0.5LR",                 {{"DL", 1.2}, {"EV", 1.2}, {"WL", 1.3}, {"LL", 1.0}, {"LR", 0.5}}},
    {strength, "1.2(DL+EV) - 1.3WL + 1.0LL + 0.5LR",                 {{"DL", 1.2}, {"EV", 1.2}, {"WL", -1.3}, {"LL", 1.0}, {"LR", 0.5}}},
    {strength, "1.2(DL+EV) + 1.3WL + 1.0LL + 0.5SL",                 {{"DL", 1.2}, {"EV", 1.2}, {"WL", 1.3}, {"LL", 1.0}, {"SL", 0.5}}},
    {strength, "1.2(DL+EV) - 1.3WL + 1.0LL + 0.5SL",                 {{"DL", 1.2}, {"EV", 1.2}, {"WL", -1.3}, {"LL", 1.0}, {"SL", 0.5}}},
    {strength, "1.2(DL+EV) + 1.3WL + 1.0LL + 0.5RL",                 {{"DL", 1.2}, {"EV", 1.2}, {"WL", 1.3}, {"LL", 1.0}, {"RL", 0.5}}},
    {strength, "1.2(DL+EV) - 1.3WL + 1.0LL + 0.5RL",                 {{"DL", 1.2}, {"EV", 1.2}, {"WL", -1.3}, {"LL", 1.0}, {"RL", 0.5}}},
};

const Rows fullU6 = {
    {strength, "0.9(DL+EV) + 1.3WL",                                 {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.3}}},
    {strength, "0.9(DL+EV) - 1.3WL",                                 {{"DL", 0.9}, {"EV", 0.9}, {"WL", -1.3}}},
};

/// U5 and U7 without increments.
const Rows fullPlainU5 = {
    {strength, "1.2(DL+EV) + 1.0(SUF)EL + 1.0LL + 0.2SL",            {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {strength, "1.2(DL+EV) - 1.0(SUF)EL + 1.0LL + 0.2SL",            {{"DL", 1.2}, {"EV", 1.2}, {"EL", -1.0}, {"LL", 1.0}, {"SL", 0.2}}},
};
const Rows fullPlainU7 = {
    {strength, "0.9(DL+EV) + 1.0(SUF)EL",                            {{"DL", 0.9}, {"EV", 0.9}, {"EL", 1.0}}},
    {strength, "0.9(DL+EV) - 1.0(SUF)EL",                            {{"DL", 0.9}, {"EV", 0.9}, {"EL", -1.0}}},
};

/// U5 and U7 with increments, in a model with EV.
const Rows fullIncrementsU5 = {
    {strength, "1.2(DL+EV) + 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)(DL+EV)",
        {{"DL", 1.2 + S * V}, {"EV", 1.2 + S * V}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
    {strength, "1.2(DL+EV) - 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)(DL+EV)",
        {{"DL", 1.2 + S * V}, {"EV", 1.2 + S * V}, {"EL", -1.0}, {"LL", 1.0}, {"SL", 0.2}}},
};
const Rows fullIncrementsU7 = {
    {strength, "0.9(DL+EV) + 1.0(SUF)(OMG)EL - (SPC)(ZEL)(DL+EV)",   {{"DL", 0.9 - S * V}, {"EV", 0.9 - S * V}, {"EL", 1.0}}},
    {strength, "0.9(DL+EV) - 1.0(SUF)(OMG)EL - (SPC)(ZEL)(DL+EV)",   {{"DL", 0.9 - S * V}, {"EV", 0.9 - S * V}, {"EL", -1.0}}},
};

const Rows verticalPair = {
    {strength, "-(VER)DL + 1.0(SUF)EL",                              {{"DL", -verticalForceFactor}, {"EL", 1.0}}},
    {strength, "-(VER)DL - 1.0(SUF)EL",                              {{"DL", -verticalForceFactor}, {"EL", -1.0}}},
};

const char* const everyGroup = "DL LL LR WL EL SL EEP RL FP EP WP EH EV";

TEST(TablesKbcKds, EveryGroup)
{
    const Lines plain = lines(joined({fullService, fullLiveRoofWind, fullPlainU5, fullU6, fullPlainU7}));
    for (const char* code : firstWindScale) {
        EXPECT_EQ(lines(rowsOf(code, everyGroup, 0)), plain) << code;
        EXPECT_EQ(lines(rowsOf(code, everyGroup, 3)), plain) << code << ", underground";
        EXPECT_EQ(lines(rowsOf(code, "DL LL LR WL EL SL RL EV", 0)), plain) << code << ": FP, EP, WP, EH and EEP stand in no row";
    }
}

TEST(TablesKbcKds, VerticalTypeAddsItsPairAtTheEnd)
{
    for (const char* code : firstWindScale) {
        EXPECT_EQ(lines(rowsOf(code, everyGroup, 2)),
                  lines(joined({fullService, fullLiveRoofWind, fullPlainU5, fullU6, fullPlainU7, verticalPair}))) << code;
    }
}

TEST(TablesKbcKds, SpecialTypesTakeIncrementsInStrengthRowsAlone)
{
    const Lines expected = lines(joined({fullService, fullLiveRoofWind, fullIncrementsU5, fullU6, fullIncrementsU7}));
    for (const char* code : firstWindScale) {
        EXPECT_EQ(lines(rowsOf(code, everyGroup, 1)), expected) << code;
        EXPECT_EQ(lines(rowsOf(code, everyGroup, 4)), expected) << code << ", underground";
    }
}

TEST(TablesKbcKds, WithoutEvTheTailNamesDeadLoadAloneAndTheHeadStays)
{
    const Rows expected = {
        {strength, "1.2(DL+EV) + 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)DL",
            {{"DL", 1.2 + S * V}, {"EV", 1.2 + S * V}, {"EL", 1.0}, {"LL", 1.0}, {"SL", 0.2}}},
        {strength, "1.2(DL+EV) - 1.0(SUF)(OMG)EL + 1.0LL + 0.2SL + (SPC)(ZEL)DL",
            {{"DL", 1.2 + S * V}, {"EV", 1.2 + S * V}, {"EL", -1.0}, {"LL", 1.0}, {"SL", 0.2}}},
        {strength, "0.9(DL+EV) + 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL",    {{"DL", 0.9 - S * V}, {"EV", 0.9 - S * V}, {"EL", 1.0}}},
        {strength, "0.9(DL+EV) - 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL",    {{"DL", 0.9 - S * V}, {"EV", 0.9 - S * V}, {"EL", -1.0}}},
    };
    for (const char* code : {"KBC-USD16", "KDS 41 30 : 2018", "KDS 41 20 : 2022"}) {
        for (const int type : {1, 4})
            EXPECT_EQ(lines(strengthRowsWith("EL", rowsOf(code, "DL LL SL EL", type))), lines(expected)) << code << ", type " << type;
    }
}

TEST(TablesKbcKds, EarthquakeRowsNameTheLiveLoadAndSnowThatHaveCases)
{
    const struct {
        const char* groups;
        int type;
        const char* plus;    ///< the first U5 row
        const char* last;    ///< the last U7 row
    } expected[] = {
        {"DL EL",          0, "1.2(DL+EV) + 1.0(SUF)EL",                                         "0.9(DL+EV) - 1.0(SUF)EL"},
        {"DL EL LL",       0, "1.2(DL+EV) + 1.0(SUF)EL + 1.0LL",                                 "0.9(DL+EV) - 1.0(SUF)EL"},
        {"DL EL SL",       0, "1.2(DL+EV) + 1.0(SUF)EL + 0.2SL",                                 "0.9(DL+EV) - 1.0(SUF)EL"},
        {"DL EL LR",       0, "1.2(DL+EV) + 1.0(SUF)EL",                                         "0.9(DL+EV) - 1.0(SUF)EL"},
        {"DL EL RL LL",    0, "1.2(DL+EV) + 1.0(SUF)EL + 1.0LL",                                 "0.9(DL+EV) - 1.0(SUF)EL"},
        {"DL EL",          1, "1.2(DL+EV) + 1.0(SUF)(OMG)EL + (SPC)(ZEL)DL",                     "0.9(DL+EV) - 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL"},
        {"DL EL LL",       1, "1.2(DL+EV) + 1.0(SUF)(OMG)EL + 1.0LL + (SPC)(ZEL)DL",             "0.9(DL+EV) - 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL"},
        {"DL EL SL",       1, "1.2(DL+EV) + 1.0(SUF)(OMG)EL + 0.2SL + (SPC)(ZEL)DL",             "0.9(DL+EV) - 1.0(SUF)(OMG)EL - (SPC)(ZEL)DL"},
        {"DL EL EV",       1, "1.2(DL+EV) + 1.0(SUF)(OMG)EL + (SPC)(ZEL)(DL+EV)",                "0.9(DL+EV) - 1.0(SUF)(OMG)EL - (SPC)(ZEL)(DL+EV)"},
        {"DL EL EV LL",    1, "1.2(DL+EV) + 1.0(SUF)(OMG)EL + 1.0LL + (SPC)(ZEL)(DL+EV)",        "0.9(DL+EV) - 1.0(SUF)(OMG)EL - (SPC)(ZEL)(DL+EV)"},
        {"DL EL EV SL",    1, "1.2(DL+EV) + 1.0(SUF)(OMG)EL + 0.2SL + (SPC)(ZEL)(DL+EV)",        "0.9(DL+EV) - 1.0(SUF)(OMG)EL - (SPC)(ZEL)(DL+EV)"},
    };
    for (const auto& row : expected) {
        const Rows rows = strengthRowsWith("EL", rowsOf("KBC-USD16", row.groups, row.type));
        ASSERT_EQ(rows.size(), 4U) << row.groups;
        EXPECT_EQ(rows.front().text, row.plus);
        EXPECT_EQ(rows.back().text, row.last);
    }
}

TEST(TablesKbcKds, RoofWithoutLiveLoad)
{
    const Rows withoutWind = {
        {service,  "(DL+EV)",                     {{"DL", 1.0}, {"EV", 1.0}}},
        {service,  "1.0(DL+EV) + 1.0SL",          {{"DL", 1.0}, {"EV", 1.0}, {"SL", 1.0}}},
        {strength, "1.4(DL)",                     {{"DL", 1.4}}},
        {strength, "1.2(DL+EV) + 1.6SL",          {{"DL", 1.2}, {"EV", 1.2}, {"SL", 1.6}}},
    };
    EXPECT_EQ(lines(rowsOf("KBC-USD16", "DL SL", 0)), lines(withoutWind));

    const Rows withWind = {
        {service,  "(DL+EV)",                            {{"DL", 1.0}, {"EV", 1.0}}},
        {service,  "1.0(DL+EV) + 1.0SL",                 {{"DL", 1.0}, {"EV", 1.0}, {"SL", 1.0}}},
        {service,  "(DL+EV) + 0.85WL",                   {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.85}}},
        {service,  "(DL+EV) - 0.85WL",                   {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.85}}},
        {service,  "1.0(DL+EV) + (0.75*0.85)WL + 0.75SL", {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.6375}, {"SL", 0.75}}},
        {service,  "1.0(DL+EV) - (0.75*0.85)WL + 0.75SL", {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.6375}, {"SL", 0.75}}},
        {service,  "0.6(DL+EV) + 0.85WL",                {{"DL", 0.6}, {"EV", 0.6}, {"WL", 0.85}}},
        {service,  "0.6(DL+EV) - 0.85WL",                {{"DL", 0.6}, {"EV", 0.6}, {"WL", -0.85}}},
        {strength, "1.4(DL)",                            {{"DL", 1.4}}},
        {strength, "1.2(DL+EV) + 1.6SL + 0.65WL",        {{"DL", 1.2}, {"EV", 1.2}, {"SL", 1.6}, {"WL", 0.65}}},
        {strength, "1.2(DL+EV) + 1.6SL - 0.65WL",        {{"DL", 1.2}, {"EV", 1.2}, {"SL", 1.6}, {"WL", -0.65}}},
        {strength, "1.2(DL+EV) + 1.3WL + 0.5SL",         {{"DL", 1.2}, {"EV", 1.2}, {"WL", 1.3}, {"SL", 0.5}}},
        {strength, "1.2(DL+EV) - 1.3WL + 0.5SL",         {{"DL", 1.2}, {"EV", 1.2}, {"WL", -1.3}, {"SL", 0.5}}},
        {strength, "0.9(DL+EV) + 1.3WL",                 {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.3}}},
        {strength, "0.9(DL+EV) - 1.3WL",                 {{"DL", 0.9}, {"EV", 0.9}, {"WL", -1.3}}},
    };
    EXPECT_EQ(lines(rowsOf("KBC-USD16", "DL SL WL", 0)), lines(withWind));
}

TEST(TablesKbcKds, DeadLoadWithWindOrEarthquakeAlone)
{
    const Rows wind = {
        {service,  "(DL+EV)",                     {{"DL", 1.0}, {"EV", 1.0}}},
        {service,  "(DL+EV) + 0.85WL",            {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.85}}},
        {service,  "(DL+EV) - 0.85WL",            {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.85}}},
        {service,  "1.0(DL+EV) + (0.75*0.85)WL",  {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.6375}}},
        {service,  "1.0(DL+EV) - (0.75*0.85)WL",  {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.6375}}},
        {service,  "0.6(DL+EV) + 0.85WL",         {{"DL", 0.6}, {"EV", 0.6}, {"WL", 0.85}}},
        {service,  "0.6(DL+EV) - 0.85WL",         {{"DL", 0.6}, {"EV", 0.6}, {"WL", -0.85}}},
        {strength, "1.4(DL)",                     {{"DL", 1.4}}},
        {strength, "1.2(DL+EV) + 1.3WL",          {{"DL", 1.2}, {"EV", 1.2}, {"WL", 1.3}}},
        {strength, "1.2(DL+EV) - 1.3WL",          {{"DL", 1.2}, {"EV", 1.2}, {"WL", -1.3}}},
        {strength, "0.9(DL+EV) + 1.3WL",          {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.3}}},
        {strength, "0.9(DL+EV) - 1.3WL",          {{"DL", 0.9}, {"EV", 0.9}, {"WL", -1.3}}},
    };
    EXPECT_EQ(lines(rowsOf("KBC-USD16", "DL WL", 0)), lines(wind));

    const Rows earthquake = {
        {service,  "(DL+EV)",                          {{"DL", 1.0}, {"EV", 1.0}}},
        {service,  "(DL+EV) + 0.7(SUF)EL",             {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.7}}},
        {service,  "(DL+EV) - 0.7(SUF)EL",             {{"DL", 1.0}, {"EV", 1.0}, {"EL", -0.7}}},
        {service,  "1.0(DL+EV) + (0.75*0.70)(SUF)EL",  {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.525}}},
        {service,  "1.0(DL+EV) - (0.75*0.70)(SUF)EL",  {{"DL", 1.0}, {"EV", 1.0}, {"EL", -0.525}}},
        {service,  "0.6(DL+EV) + 0.7(SUF)EL",          {{"DL", 0.6}, {"EV", 0.6}, {"EL", 0.7}}},
        {service,  "0.6(DL+EV) - 0.7(SUF)EL",          {{"DL", 0.6}, {"EV", 0.6}, {"EL", -0.7}}},
        {strength, "1.4(DL)",                          {{"DL", 1.4}}},
        {strength, "1.2(DL+EV) + 1.0(SUF)EL",          {{"DL", 1.2}, {"EV", 1.2}, {"EL", 1.0}}},
        {strength, "1.2(DL+EV) - 1.0(SUF)EL",          {{"DL", 1.2}, {"EV", 1.2}, {"EL", -1.0}}},
        {strength, "0.9(DL+EV) + 1.0(SUF)EL",          {{"DL", 0.9}, {"EV", 0.9}, {"EL", 1.0}}},
        {strength, "0.9(DL+EV) - 1.0(SUF)EL",          {{"DL", 0.9}, {"EV", 0.9}, {"EL", -1.0}}},
    };
    EXPECT_EQ(lines(rowsOf("KBC-USD16", "DL EL", 0)), lines(earthquake));

    const Rows snowAndEarthquake = {
        {service, "(DL+EV) + 0.7(SUF)EL",                      {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.7}}},
        {service, "(DL+EV) - 0.7(SUF)EL",                      {{"DL", 1.0}, {"EV", 1.0}, {"EL", -0.7}}},
        {service, "1.0(DL+EV) + (0.75*0.70)(SUF)EL + 0.75SL",  {{"DL", 1.0}, {"EV", 1.0}, {"EL", 0.525}, {"SL", 0.75}}},
        {service, "1.0(DL+EV) - (0.75*0.70)(SUF)EL + 0.75SL",  {{"DL", 1.0}, {"EV", 1.0}, {"EL", -0.525}, {"SL", 0.75}}},
        {service, "0.6(DL+EV) + 0.7(SUF)EL",                   {{"DL", 0.6}, {"EV", 0.6}, {"EL", 0.7}}},
        {service, "0.6(DL+EV) - 0.7(SUF)EL",                   {{"DL", 0.6}, {"EV", 0.6}, {"EL", -0.7}}},
    };
    EXPECT_EQ(lines(serviceRowsWith("EL", rowsOf("KBC-USD16", "DL SL EL", 1))), lines(snowAndEarthquake));
}

TEST(TablesKbcKds, SecondWindScaleChangesTheWindRowsAlone)
{
    const Rows wind = {
        {service,  "(DL+EV) + 0.65WL",                               {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.65}}},
        {service,  "(DL+EV) - 0.65WL",                               {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.65}}},
        {service,  "1.0(DL+EV) + (0.75*0.65)WL + 0.75LL + 0.75LR",   {{"DL", 1.0}, {"EV", 1.0}, {"WL", 0.4875}, {"LL", 0.75}, {"LR", 0.75}}},
        {service,  "1.0(DL+EV) - (0.75*0.65)WL + 0.75LL + 0.75LR",   {{"DL", 1.0}, {"EV", 1.0}, {"WL", -0.4875}, {"LL", 0.75}, {"LR", 0.75}}},
        {service,  "0.6(DL+EV) + 0.65WL",                            {{"DL", 0.6}, {"EV", 0.6}, {"WL", 0.65}}},
        {service,  "0.6(DL+EV) - 0.65WL",                            {{"DL", 0.6}, {"EV", 0.6}, {"WL", -0.65}}},
        {strength, "1.2(DL+EV) + 1.6LR + 0.5WL",                     {{"DL", 1.2}, {"EV", 1.2}, {"LR", 1.6}, {"WL", 0.5}}},
        {strength, "1.2(DL+EV) + 1.6LR - 0.5WL",                     {{"DL", 1.2}, {"EV", 1.2}, {"LR", 1.6}, {"WL", -0.5}}},
        {strength, "1.2(DL+EV) + 1.0WL + 1.0LL + 0.5LR",             {{"DL", 1.2}, {"EV", 1.2}, {"WL", 1.0}, {"LL", 1.0}, {"LR", 0.5}}},
        {strength, "1.2(DL+EV) - 1.0WL + 1.0LL + 0.5LR",             {{"DL", 1.2}, {"EV", 1.2}, {"WL", -1.0}, {"LL", 1.0}, {"LR", 0.5}}},
        {strength, "0.9(DL+EV) + 1.0WL",                             {{"DL", 0.9}, {"EV", 0.9}, {"WL", 1.0}}},
        {strength, "0.9(DL+EV) - 1.0WL",                             {{"DL", 0.9}, {"EV", 0.9}, {"WL", -1.0}}},
    };
    const Rows newer = rowsOf("KDS 41 20 : 2022", "DL LL LR WL EL", 0);
    EXPECT_EQ(lines(rowsWith("WL", newer)), lines(wind));
    EXPECT_EQ(lines(rowsWithout("WL", newer)), lines(rowsWithout("WL", rowsOf("KBC-USD16", "DL LL LR WL EL", 0))));
    for (const char* groups : {"DL LL LR WL EL", "DL WL", "DL LL WL", everyGroup}) {
        for (const int type : {0, 1, 2, 3, 4}) {
            const auto* loadCode0 = findCode("KDS 41 30 : 2018")->tableOfLoadCode0;
            EXPECT_EQ(lines(rowsOf(*loadCode0, groups, type)), lines(rowsOf("KDS 41 20 : 2022", groups, type))) << groups << ", type " << type;
        }
    }
}

TEST(TablesKbcKds, UndergroundSetsAreReadByTheTwoNewerCodesAlone)
{
    const struct {
        const char* code;
        bool underground;
    } expected[] = {{"KBC-USD16", false}, {"KDS 41 30 : 2018", true}, {"KDS 41 20 : 2022", true}};
    for (const auto& row : expected) {
        const auto& parts = findCode(row.code)->table->parts;
        ASSERT_EQ(parts.size(), 1U);
        EXPECT_TRUE(reads(parts[0].reads, Reads::windSets)) << row.code;
        EXPECT_TRUE(reads(parts[0].reads, Reads::seismicFactors)) << row.code;
        EXPECT_EQ(reads(parts[0].reads, Reads::undergroundSets), row.underground) << row.code;
    }
}

TEST(TablesKbcKds, OnlyTheCodeOf2018HasAChoiceOfLoadCode)
{
    for (const auto& entry : zel::codes::codeRegistry)
        EXPECT_EQ(entry.tableOfLoadCode0 != nullptr, entry.name == "KDS 41 30 : 2018") << entry.name;
}

}  // namespace
