#include "loadcomb/generator_fixture.h"

#include <gtest/gtest.h>

namespace {

using generated::addTo;
using generated::GeneratorOptions;
using generated::key;
using generated::Lines;
using generated::model;

/// EX and EY at right angles, each with an eccentric case.
struct Earthquakes {
    generated::GeneratorModel of = model("DL:D EX:E EY:E EXT:ES EYT:ES");
    GeneratorOptions options;

    Earthquakes& orthogonal()
    {
        of.orthogonal.emplace();
        of.orthogonal->pairs = {{key(of, "EX"), key(of, "EY")}};
        options.orthoOption = true;
        return *this;
    }
    Earthquakes& scale(const char* name, double factor)
    {
        options.scaleFactors[key(of, name)] = factor;
        return *this;
    }
    Earthquakes& eccentric(const char* name, const char* partner)
    {
        options.eccentricCases[key(of, name)] = key(of, partner);
        return *this;
    }
    [[nodiscard]] Lines row(double factor = 1.0) const { return addTo(of, options, 1, "0.9DL + 1.0(SUF)(OMG)EL", {{"DL", 0.9}, {"EL", factor}}); }
    [[nodiscard]] Lines plainRow(double factor = 1.0) const { return addTo(of, options, 1, "0.9DL + 1.0(SUF)EL", {{"DL", 0.9}, {"EL", factor}}); }
};

TEST(Earthquakes, EachCaseIsACombination)
{
    EXPECT_EQ(Earthquakes().plainRow(), (Lines{
        "1 | DL 0.9, EX 1 | 0.9D + 1.0EX",
        "1 | DL 0.9, EY 1 | 0.9D + 1.0EY",
    }));
}

TEST(Earthquakes, AScaleFactorStandsInItsParentheses)
{
    EXPECT_EQ(Earthquakes().scale("EY", 1.25).plainRow(0.5), (Lines{
        "1 | DL 0.9, EX 0.5 | 0.9D + 1.0EX",
        "1 | DL 0.9, EY 0.625 | 0.9D + 1.0(1.25)EY",
    }));
}

TEST(Earthquakes, AScaleFactorOfOneIsShown)
{
    EXPECT_EQ(Earthquakes().scale("EX", 1.0).plainRow()[0], "1 | DL 0.9, EX 1 | 0.9D + 1.0(1.0)EX");
}

TEST(Earthquakes, OverstrengthThatDoesNotApplyStaysInTheText)
{
    EXPECT_EQ(Earthquakes().row()[0], "1 | DL 0.9, EX 1 | 0.9D + 1.0(OMG)EX");
}

TEST(Earthquakes, AnEccentricPartnerIsAddedAndSubtracted)
{
    EXPECT_EQ(Earthquakes().scale("EX", 1.25).eccentric("EX", "EXT").plainRow(-0.5), (Lines{
        "1 | DL 0.9, EX -0.625, EXT -0.625 | 0.9D + 1.0(1.25)[EX+EXT]",
        "1 | DL 0.9, EX -0.625, EXT 0.625 | 0.9D + 1.0(1.25)[EX-EXT]",
        "1 | DL 0.9, EY -0.5 | 0.9D + 1.0EY",
    }));
}

TEST(Earthquakes, APartnerThatIsNotInTheModelIsNone)
{
    Earthquakes some;
    some.options.eccentricCases[key(some.of, "EX")] = 99;
    EXPECT_EQ(some.plainRow()[0], "1 | DL 0.9, EX 1 | 0.9D + 1.0EX");
}

TEST(OrthogonalEarthquakes, TakeThirtyPercentOfThePartnerInBothSigns)
{
    EXPECT_EQ(Earthquakes().orthogonal().scale("EX", 1.25).row(), (Lines{
        "1 | DL 0.9, EX 1.25, EY 0.3 | 0.9D + 1.0(1.0(1.25)EX+0.3(1.00)EY)",
        "1 | DL 0.9, EX 1.25, EY -0.3 | 0.9D + 1.0(1.0(1.25)EX-0.3(1.00)EY)",
        "1 | DL 0.9, EY 1, EX 0.375 | 0.9D + 1.0(1.0(1.00)EY+0.3(1.25)EX)",
        "1 | DL 0.9, EY 1, EX -0.375 | 0.9D + 1.0(1.0(1.00)EY-0.3(1.25)EX)",
    }));
}

TEST(OrthogonalEarthquakes, ACaseOutsideEveryPairIsLeftOut)
{
    Earthquakes some;
    some.orthogonal();
    some.of.cases.push_back({9, "EZ", "E"});
    for (const std::string& line : some.plainRow())
        EXPECT_EQ(line.find("EZ"), std::string::npos) << line;
    EXPECT_EQ(some.plainRow().size(), 4U);
}

TEST(OrthogonalEarthquakes, APairWhosePartnerIsGoneGivesNothing)
{
    Earthquakes some;
    some.orthogonal();
    some.of.orthogonal->pairs = {{key(some.of, "EX"), 99}};
    EXPECT_TRUE(some.plainRow().empty()) << "and so the row gives nothing";
}

TEST(OrthogonalEarthquakes, ALaterPairOverwritesAnEarlierOne)
{
    Earthquakes some;
    some.orthogonal();
    some.of.orthogonal->pairs.push_back({key(some.of, "EX"), key(some.of, "EXT")});
    EXPECT_EQ(some.plainRow()[0], "1 | DL 0.9, EX 1, EXT 0.3 | 0.9D + 1.0(1.0(1.00)EX+0.3(1.00)EXT)");
    EXPECT_EQ(some.plainRow()[2], "1 | DL 0.9, EY 1, EX 0.3 | 0.9D + 1.0(1.0(1.00)EY+0.3(1.00)EX)") << "EY still leads to EX";
}

TEST(OrthogonalEarthquakes, BothEccentricGiveTwoPasses)
{
    EXPECT_EQ(Earthquakes().orthogonal().eccentric("EX", "EXT").eccentric("EY", "EYT").plainRow(), (Lines{
        // first: both partners added, then both subtracted
        "1 | DL 0.9, EX 1, EXT 1, EY 0.3, EYT 0.3 | 0.9D + 1.0(1.0(1.00)[EX+EXT]+0.3(1.00)[EY+EYT])",
        "1 | DL 0.9, EX 1, EXT -1, EY 0.3, EYT -0.3 | 0.9D + 1.0(1.0(1.00)[EX-EXT]+0.3(1.00)[EY-EYT])",
        "1 | DL 0.9, EX 1, EXT 1, EY -0.3, EYT -0.3 | 0.9D + 1.0(1.0(1.00)[EX+EXT]-0.3(1.00)[EY+EYT])",
        "1 | DL 0.9, EX 1, EXT -1, EY -0.3, EYT 0.3 | 0.9D + 1.0(1.0(1.00)[EX-EXT]-0.3(1.00)[EY-EYT])",
        "1 | DL 0.9, EY 1, EYT 1, EX 0.3, EXT 0.3 | 0.9D + 1.0(1.0(1.00)[EY+EYT]+0.3(1.00)[EX+EXT])",
        "1 | DL 0.9, EY 1, EYT -1, EX 0.3, EXT -0.3 | 0.9D + 1.0(1.0(1.00)[EY-EYT]+0.3(1.00)[EX-EXT])",
        "1 | DL 0.9, EY 1, EYT 1, EX -0.3, EXT -0.3 | 0.9D + 1.0(1.0(1.00)[EY+EYT]-0.3(1.00)[EX+EXT])",
        "1 | DL 0.9, EY 1, EYT -1, EX -0.3, EXT 0.3 | 0.9D + 1.0(1.0(1.00)[EY-EYT]-0.3(1.00)[EX-EXT])",
        // second: one added, the other subtracted
        "1 | DL 0.9, EX 1, EXT 1, EY 0.3, EYT -0.3 | 0.9D + 1.0(1.0(1.00)[EX+EXT]+0.3(1.00)[EY-EYT])",
        "1 | DL 0.9, EX 1, EXT -1, EY 0.3, EYT 0.3 | 0.9D + 1.0(1.0(1.00)[EX-EXT]+0.3(1.00)[EY+EYT])",
        "1 | DL 0.9, EX 1, EXT 1, EY -0.3, EYT 0.3 | 0.9D + 1.0(1.0(1.00)[EX+EXT]-0.3(1.00)[EY-EYT])",
        "1 | DL 0.9, EX 1, EXT -1, EY -0.3, EYT -0.3 | 0.9D + 1.0(1.0(1.00)[EX-EXT]-0.3(1.00)[EY+EYT])",
        "1 | DL 0.9, EY 1, EYT 1, EX 0.3, EXT -0.3 | 0.9D + 1.0(1.0(1.00)[EY+EYT]+0.3(1.00)[EX-EXT])",
        "1 | DL 0.9, EY 1, EYT -1, EX 0.3, EXT 0.3 | 0.9D + 1.0(1.0(1.00)[EY-EYT]+0.3(1.00)[EX+EXT])",
        "1 | DL 0.9, EY 1, EYT 1, EX -0.3, EXT 0.3 | 0.9D + 1.0(1.0(1.00)[EY+EYT]-0.3(1.00)[EX-EXT])",
        "1 | DL 0.9, EY 1, EYT -1, EX -0.3, EXT -0.3 | 0.9D + 1.0(1.0(1.00)[EY-EYT]-0.3(1.00)[EX+EXT])",
    }));
}

TEST(OrthogonalEarthquakes, OneEccentricMemberGivesBothVariantsAndNoSecondPass)
{
    EXPECT_EQ(Earthquakes().orthogonal().scale("EX", 1.25).eccentric("EX", "EXT").plainRow(0.5), (Lines{
        "1 | DL 0.9, EX 0.625, EXT 0.625, EY 0.15 | 0.9D + 1.0(1.0(1.25)[EX+EXT]+0.3(1.00)EY)",
        "1 | DL 0.9, EX 0.625, EXT -0.625, EY 0.15 | 0.9D + 1.0(1.0(1.25)[EX-EXT]+0.3(1.00)EY)",
        "1 | DL 0.9, EX 0.625, EXT 0.625, EY -0.15 | 0.9D + 1.0(1.0(1.25)[EX+EXT]-0.3(1.00)EY)",
        "1 | DL 0.9, EX 0.625, EXT -0.625, EY -0.15 | 0.9D + 1.0(1.0(1.25)[EX-EXT]-0.3(1.00)EY)",
        "1 | DL 0.9, EY 0.5, EX 0.1875, EXT 0.1875 | 0.9D + 1.0(1.0(1.00)EY+0.3(1.25)[EX+EXT])",
        "1 | DL 0.9, EY 0.5, EX 0.1875, EXT -0.1875 | 0.9D + 1.0(1.0(1.00)EY+0.3(1.25)[EX-EXT])",
        "1 | DL 0.9, EY 0.5, EX -0.1875, EXT -0.1875 | 0.9D + 1.0(1.0(1.00)EY-0.3(1.25)[EX+EXT])",
        "1 | DL 0.9, EY 0.5, EX -0.1875, EXT 0.1875 | 0.9D + 1.0(1.0(1.00)EY-0.3(1.25)[EX-EXT])",
    }));
}

TEST(OrthogonalEarthquakes, PartnersThatAreGoneGiveThePlainVariantOnce)
{
    Earthquakes some;
    some.orthogonal().options.eccentricCases = {{key(some.of, "EX"), 99}};
    EXPECT_EQ(some.plainRow(), (Lines{
        "1 | DL 0.9, EX 1, EY 0.3 | 0.9D + 1.0(1.0(1.00)EX+0.3(1.00)EY)",
        "1 | DL 0.9, EX 1, EY -0.3 | 0.9D + 1.0(1.0(1.00)EX-0.3(1.00)EY)",
        "1 | DL 0.9, EY 1, EX 0.3 | 0.9D + 1.0(1.0(1.00)EY+0.3(1.00)EX)",
        "1 | DL 0.9, EY 1, EX -0.3 | 0.9D + 1.0(1.0(1.00)EY-0.3(1.00)EX)",
    }));
}

TEST(OrthogonalEarthquakes, ProductsAreTakenInTheirOrder)
{
    // f*k*g*s without a partner, k*f*s*g with one: with these factors the two orders differ in the last digit.
    const double f = 1.4025;
    const double k = 0.3;
    const double s = 1.1;
    const Earthquakes without = Earthquakes().orthogonal().scale("EX", s).scale("EY", s);
    zel::loadcomb::Generator plain(without.of, without.options);
    plain.readOrthogonalPairs();
    generated::give(plain, 1, "DL + EL", {{"DL", 1.0}, {"EL", f}});
    EXPECT_EQ(plain.rows().front().items[2].factor, f * k * 1.0 * s);

    Earthquakes with = without;
    with.eccentric("EY", "EYT");
    zel::loadcomb::Generator eccentric(with.of, with.options);
    eccentric.readOrthogonalPairs();
    generated::give(eccentric, 1, "DL + EL", {{"DL", 1.0}, {"EL", f}});
    EXPECT_EQ(eccentric.rows().front().items[2].factor, k * f * s * 1.0);
    EXPECT_EQ(eccentric.rows().front().items[3].factor, k * f * s * 1.0);
}

TEST(OverstrengthFactors, StandInTextAndFactorOfSpecialSeismicLoads)
{
    Earthquakes some;
    some.of.seismic.emplace();
    some.of.seismic->shortPeriodCoefficient = 0.5;
    some.of.seismic->verticalLoadFactor = 0.2;
    some.of.seismic->overStrengthFactors = {{key(some.of, "EX"), 2.5}};
    some.options.combType = zel::codes::CombType::special;
    some.scale("EX", 1.25);
    zel::loadcomb::Generator generator(some.of, some.options);
    generator.readSeismicFactors();
    EXPECT_EQ(generated::add(generator, some.of, 1, "0.9DL + 1.0(SUF)(OMG)EL", {{"DL", 0.9}, {"EL", 1.0}}), (Lines{
        "1 | DL 0.9, EX 3.125 | 0.9D + 1.0(1.25)(2.5)EX",
        "1 | DL 0.9, EY 1 | 0.9D + 1.0(1.0)EY",    // a case without a factor has 1.0
    }));
}

TEST(OverstrengthFactors, AreNotUsedInServiceRows)
{
    Earthquakes some;
    some.of.seismic.emplace();
    some.of.seismic->shortPeriodCoefficient = 0.5;
    some.of.seismic->overStrengthFactors = {{key(some.of, "EX"), 2.5}};
    some.options.combType = zel::codes::CombType::special;
    zel::loadcomb::Generator generator(some.of, some.options);
    generator.readSeismicFactors();
    EXPECT_EQ(generated::add(generator, some.of, 0, "DL + 0.7(SUF)EL", {{"DL", 1.0}, {"EL", 0.7}})[0], "0 | DL 1, EX 0.7 | D + 0.7EX");
}

TEST(OverstrengthFactors, StandBehindTheScaleFactorOfOrthogonalMembers)
{
    Earthquakes some;
    some.of.seismic.emplace();
    some.of.seismic->shortPeriodCoefficient = 0.5;
    some.of.seismic->verticalLoadFactor = 0.2;
    some.of.seismic->overStrengthFactors = {{key(some.of, "EX"), 2.0}, {key(some.of, "EY"), 4.0}};
    some.options.combType = zel::codes::CombType::special;
    some.orthogonal().eccentric("EX", "EXT");
    zel::loadcomb::Generator generator(some.of, some.options);
    generator.readOrthogonalPairs();
    generator.readSeismicFactors();
    EXPECT_EQ(generated::add(generator, some.of, 1, "0.9DL + 1.0(SUF)(OMG)EL", {{"DL", 0.9}, {"EL", 1.0}})[0],
              "1 | DL 0.9, EX 2, EXT 2, EY 1.2 | 0.9D + 1.0(1.0(1.00)(2.00)[EX+EXT]+0.3(1.00)(4.00)EY)");
}

/// The rows of a run share what is the same for them; a row that meets other numbers than the row before it shows them.
TEST(OrthogonalPairs, FollowWhatHasChangedSinceTheRowBefore)
{
    Earthquakes some;
    some.orthogonal().eccentric("EX", "EXT").eccentric("EY", "EYT").scale("EX", 1.5);
    some.options.combType = zel::codes::CombType::special;
    zel::loadcomb::Generator generator(some.of, some.options);
    generator.readOrthogonalPairs();
    zel::loadcomb::ExpansionState& state = generator.state();
    state.overstrength[key(some.of, "EX")] = 2.0;
    const auto expectFirst = [&](int flag, std::size_t count, const char* line) {
        generator.start(0, 0);
        const Lines lines = generated::add(generator, some.of, flag, "EL", {{"EL", 1.0}});
        EXPECT_EQ(lines.size(), count);
        EXPECT_EQ(lines.front(), line);
    };
    expectFirst(1, 16, "1 | EX 3, EXT 3, EY 0.3, EYT 0.3 | (1.0(1.50)(2.00)[EX+EXT]+0.3(1.00)(1.00)[EY+EYT])");
    expectFirst(0, 16, "0 | EX 1.5, EXT 1.5, EY 0.3, EYT 0.3 | (1.0(1.50)[EX+EXT]+0.3(1.00)[EY+EYT])");
    expectFirst(1, 16, "1 | EX 3, EXT 3, EY 0.3, EYT 0.3 | (1.0(1.50)(2.00)[EX+EXT]+0.3(1.00)(1.00)[EY+EYT])");
    state.overstrength[key(some.of, "EX")] = 4.0;
    expectFirst(1, 16, "1 | EX 6, EXT 6, EY 0.3, EYT 0.3 | (1.0(1.50)(4.00)[EX+EXT]+0.3(1.00)(1.00)[EY+EYT])");
    state.scaleFactors[key(some.of, "EX")] = 1.25;
    expectFirst(1, 16, "1 | EX 5, EXT 5, EY 0.3, EYT 0.3 | (1.0(1.25)(4.00)[EX+EXT]+0.3(1.00)(1.00)[EY+EYT])");
    state.eccentricCases[key(some.of, "EX")] = key(some.of, "EYT");
    expectFirst(1, 16, "1 | EX 5, EYT 5, EY 0.3, EYT 0.3 | (1.0(1.25)(4.00)[EX+EYT]+0.3(1.00)(1.00)[EY+EYT])");
    state.orthoPairs.erase(key(some.of, "EX"));
    expectFirst(1, 8, "1 | EY 1, EYT 1, EX 1.5, EYT 1.5 | (1.0(1.00)(1.00)[EY+EYT]+0.3(1.25)(4.00)[EX+EYT])");
}

}  // namespace
