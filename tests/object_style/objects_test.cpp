#include "object_style/jhasso_loadcomb_loadcase.h"
#include "object_style/jhcode_loadcomb.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

using zel::object_style::ObjectList;

struct ThreeCases {
    Jhloadcase first{1}, second{2}, third{3};
    ObjectList<Jhloadcase> list;
    ThreeCases()
    {
        for (Jhloadcase* loadcase : {&first, &second, &third})
            list.add(*loadcase);
    }
    [[nodiscard]] std::vector<std::uint32_t> ids() const
    {
        std::vector<std::uint32_t> found;
        for (const Jhloadcase* loadcase : list)
            found.push_back(loadcase->id);
        return found;
    }
};
using Ids = std::vector<std::uint32_t>;

TEST(ObjectList, WalksFromTheFirstToTheLast)
{
    ThreeCases cases;
    EXPECT_EQ(cases.list.count(), 3U);
    EXPECT_EQ(cases.list.first(), &cases.first);
    EXPECT_EQ(cases.list.next(), &cases.second);
    EXPECT_EQ(cases.list.current(), &cases.second);
    EXPECT_EQ(cases.list.next(), &cases.third);
    EXPECT_EQ(cases.list.next(), nullptr);
    EXPECT_EQ(cases.list.current(), &cases.third) << "the cursor stays on the last object";
}

TEST(ObjectList, GivesNothingWhileItIsEmpty)
{
    ObjectList<Jhloadcase> list;
    EXPECT_EQ(list.first(), nullptr);
    EXPECT_EQ(list.current(), nullptr);
    EXPECT_EQ(list.next(), nullptr);
    EXPECT_EQ(list.removeCurrent(), nullptr);
    EXPECT_EQ(list.find(1), nullptr);
    EXPECT_EQ(list.count(), 0U);
}

TEST(ObjectList, FindsTheFirstObjectWithAnId)
{
    ThreeCases cases;
    Jhloadcase twin(2);
    cases.list.add(twin);
    EXPECT_EQ(cases.list.find(2), &cases.second);
    EXPECT_EQ(cases.list.find(4), nullptr);
}

TEST(ObjectList, RefusesAnObjectThatItHolds)
{
    ThreeCases cases;
    EXPECT_FALSE(cases.list.add(cases.first));
    EXPECT_EQ(cases.ids(), (Ids{1, 2, 3}));
}

TEST(ObjectList, RemovingMovesTheCursorToTheFollowingObject)
{
    ThreeCases cases;
    cases.list.first();
    cases.list.next();
    EXPECT_EQ(cases.list.removeCurrent(), &cases.second);
    EXPECT_EQ(cases.list.current(), &cases.third);
    EXPECT_EQ(cases.ids(), (Ids{1, 3}));
}

TEST(ObjectList, RemovingTheLastMovesTheCursorToTheOneBefore)
{
    ThreeCases cases;
    cases.list.first();
    cases.list.next();
    cases.list.next();
    EXPECT_EQ(cases.list.removeCurrent(), &cases.third);
    EXPECT_EQ(cases.list.current(), &cases.second);
    cases.list.removeCurrent();
    cases.list.removeCurrent();
    EXPECT_EQ(cases.list.current(), nullptr);
    EXPECT_EQ(cases.list.count(), 0U);
    EXPECT_TRUE(cases.list.add(cases.first)) << "what was taken out may come back";
    EXPECT_EQ(cases.list.current(), &cases.first);
}

TEST(ObjectList, RemovingElsewhereLeavesTheCursor)
{
    ThreeCases cases;
    cases.list.first();
    EXPECT_TRUE(cases.list.remove(cases.third));
    EXPECT_FALSE(cases.list.remove(cases.third));
    EXPECT_EQ(cases.list.current(), &cases.first);
    EXPECT_EQ(cases.ids(), (Ids{1, 2}));
}

TEST(ObjectStyleObjects, AreNamedByPrefixAndNumber)
{
    EXPECT_EQ(JhcodeLoadcomb(1).name, "JhcodeLoadcomb1");
    EXPECT_EQ(Jhloadcase(4).name, "Jhloadcase4");
    EXPECT_EQ(JhloadCombination(12).name, "LC12");
    EXPECT_EQ(JhassoLoadcombLoadcase(7).name, "JhassoLoadcombLoadcase7");
    EXPECT_EQ(JhassoLoadcombLoadcase(7).id, 7U);
}

TEST(ObjectStyleObjects, StartWithTheirDefaults)
{
    const Jhloadcase loadcase(1);
    EXPECT_EQ(loadcase.factor, 1.0F);
    EXPECT_EQ(loadcase.type, "");
    const JhloadCombination combination(1);
    EXPECT_EQ(combination.active, 1);
    EXPECT_EQ(combination.type, 0);
    EXPECT_EQ(combination.code, nullptr);
    EXPECT_EQ(JhassoLoadcombLoadcase(1).type, 1);
}

TEST(ObjectStyleObjects, ACombinationMayBeNamedApartFromItsId)
{
    const JhloadCombination combination(5, 12);
    EXPECT_EQ(combination.id, 5U);
    EXPECT_EQ(combination.name, "LC12");
}

TEST(ObjectStyleObjects, ACombinationTakesAllItsFields)
{
    const JhloadCombination combination(9, 3, 0, 2, "1.4DL");
    EXPECT_EQ(combination.id, 9U);
    EXPECT_EQ(combination.name, "LC9");
    EXPECT_EQ(combination.kind, 3U);
    EXPECT_EQ(combination.active, 0);
    EXPECT_EQ(combination.type, 2);
    EXPECT_EQ(combination.description, "1.4DL");
}

TEST(ObjectStyleLink, StandsInTheListOfEachSideThatIsSet)
{
    JhloadCombination combination(1);
    Jhloadcase loadcase(1);
    JhassoLoadcombLoadcase link(1);
    EXPECT_TRUE(link.setCombination(&combination));
    EXPECT_EQ(combination.cases.first(), &link);
    EXPECT_EQ(loadcase.combinations.count(), 0U);
    EXPECT_TRUE(link.setLoadcase(&loadcase));
    EXPECT_EQ(loadcase.combinations.first(), &link);
    EXPECT_EQ(link.combination(), &combination);
    EXPECT_EQ(link.loadcase(), &loadcase);
}

TEST(ObjectStyleLink, RefusesNullAndKeepsItsSide)
{
    JhloadCombination combination(1);
    Jhloadcase loadcase(1);
    JhassoLoadcombLoadcase link(1);
    link.setCombination(&combination);
    link.setLoadcase(&loadcase);
    EXPECT_FALSE(link.setCombination(nullptr));
    EXPECT_FALSE(link.setLoadcase(nullptr));
    EXPECT_EQ(link.combination(), &combination);
    EXPECT_EQ(link.loadcase(), &loadcase);
    EXPECT_EQ(combination.cases.count(), 1U);
    EXPECT_EQ(loadcase.combinations.count(), 1U);
}

TEST(ObjectStyleLink, LeavesTheListOfASideThatIsClearedOrChanged)
{
    JhloadCombination combination(1), other(2);
    Jhloadcase loadcase(1), otherCase(2);
    JhassoLoadcombLoadcase link(1);
    link.setCombination(&combination);
    link.setLoadcase(&loadcase);
    EXPECT_TRUE(link.setCombination(&other));
    EXPECT_TRUE(link.setLoadcase(&otherCase));
    EXPECT_EQ(combination.cases.count(), 0U);
    EXPECT_EQ(loadcase.combinations.count(), 0U);
    EXPECT_EQ(other.cases.count(), 1U);
    EXPECT_EQ(otherCase.combinations.count(), 1U);
    link.clearCombination();
    link.clearLoadcase();
    EXPECT_EQ(link.combination(), nullptr);
    EXPECT_EQ(link.loadcase(), nullptr);
    EXPECT_EQ(other.cases.count(), 0U);
    EXPECT_EQ(otherCase.combinations.count(), 0U);
    link.clearLoadcase();
    EXPECT_EQ(link.loadcase(), nullptr) << "clearing twice does no harm";
}

}  // namespace
