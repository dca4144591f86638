#include "desktop/forms/mnemonics.h"

#include <gtest/gtest.h>

namespace desktop_test {

using zel::desktop::withMnemonics;

namespace {

std::vector<std::string> marked(std::initializer_list<const char*> texts)
{
    std::vector<QString> given;
    for (const char* each : texts)
        given.push_back(QString::fromUtf8(each));
    std::vector<std::string> result;
    for (const QString& each : withMnemonics(given))
        result.push_back(each.toStdString());
    return result;
}

using Texts = std::vector<std::string>;

}  // namespace

TEST(Mnemonics, ThoseThatAreDeclaredStay)
{
    EXPECT_EQ(marked({"Name", "&New", "Apply"}), (Texts{"N&ame", "&New", "A&pply"}));
}

TEST(Mnemonics, BeginnersOfWordsComeFirstThenAnyLetter)
{
    EXPECT_EQ(marked({"Add", "Add All", "Auto"}), (Texts{"&Add", "A&dd All", "A&uto"}));
}

TEST(Mnemonics, TheSecondOfTwoThatAreDeclaredAlikeGetsAnother)
{
    EXPECT_EQ(marked({"&Close", "&Cancel"}), (Texts{"&Close", "C&ancel"}));
}

TEST(Mnemonics, ATextWithoutAFreeLetterGetsNone)
{
    EXPECT_EQ(marked({"OK", "KO", "O", "->", "", "하중"}), (Texts{"&OK", "&KO", "O", "->", "", "하중"}));
}

TEST(Mnemonics, AnAmpersandThatIsShownStays)
{
    EXPECT_EQ(marked({"Loads && Cases"}), (Texts{"&Loads && Cases"}));
}

}  // namespace desktop_test
