#include "object_style/fixture.h"

#include "build_paths.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"

#include <cstdlib>
#include <sys/wait.h>

namespace {

using zel::ModelDocument;
using zel::test::contentsOf;
using zel::test::InOwnFolder;
using zel::test::loadCase;

/// Runs the example program in a folder of its own, beside the model file "model.qvx".
class ObjectStyleExample : public testing::Test {
protected:
    InOwnFolder here;

    static int run(const std::string& arguments)
    {
        const int status = std::system(("\"" + zel::test::programFolder() + "/object_style_example\" " + arguments + " > out 2> error").c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    static void makeModel(std::initializer_list<const char*> types)
    {
        const auto document = ModelDocument::create("model.qvx");
        for (const char* type : types)
            ASSERT_NE(CDataStld().Add(loadCase((std::string("case ") + type).c_str(), type)), 0);
    }

    static int storedCount()
    {
        const auto document = ModelDocument::open("model.qvx");
        return CDataLcom().GetCount(1);
    }
};

TEST_F(ObjectStyleExample, StoresTheCombinationsAndWritesTheReport)
{
    makeModel({"D", "L", "W", "E"});
    EXPECT_EQ(run("model.qvx KCI-USD99"), 0) << contentsOf("error");
    EXPECT_EQ(contentsOf("out"), "16 load combinations of KCI-USD99, report in lcomb.out\n");
    EXPECT_EQ(storedCount(), 16);
    EXPECT_NE(contentsOf("lcomb.out").find("LC16\n   kind :     1\n   desc : 0.9DL-1.4EL\n factor :   0.9Loadcase : case D"), std::string::npos);
}

TEST_F(ObjectStyleExample, AddsOrReplaces)
{
    makeModel({"D", "L"});
    EXPECT_EQ(run("model.qvx AIK-USD94"), 0);
    EXPECT_EQ(run("model.qvx ACI318-95"), 0);
    EXPECT_EQ(storedCount(), 4);
    EXPECT_EQ(run("model.qvx ACI318-95 --replace"), 0);
    EXPECT_EQ(storedCount(), 2);
}

TEST_F(ObjectStyleExample, TellsWhatTheModelLacks)
{
    makeModel({});
    EXPECT_EQ(run("model.qvx AIK-USD94"), 1);
    EXPECT_EQ(contentsOf("error"), std::string(zel::MessageCatalogue::builtIn().find("IDS_ZEL_CMD__No_Existing_Any_Load_Case____")) + "\n");
}

TEST_F(ObjectStyleExample, RefusesAWrongCallBeforeItTouchesAnything)
{
    makeModel({"D", "L"});
    for (const char* arguments : {"", "model.qvx", "model.qvx ACI318-02", "model.qvx AIK-USD94 --add", "model.qvx AIK-USD94 --replace more"}) {
        EXPECT_EQ(run(arguments), 2) << arguments;
        EXPECT_NE(contentsOf("error").find("Codes: AIK-USD94 ACI318-89 ACI318-95 ACI318-99 KCI-USD99 KSCE-USD96\n"), std::string::npos) << arguments;
    }
    EXPECT_FALSE(std::filesystem::exists("lcomb.out"));
    EXPECT_EQ(storedCount(), 0);
}

TEST_F(ObjectStyleExample, NamesAModelFileThatCannotBeOpened)
{
    EXPECT_EQ(run("missing.qvx AIK-USD94"), 1);
    EXPECT_NE(contentsOf("error").find("missing.qvx"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists("lcomb.out"));
}

}  // namespace
