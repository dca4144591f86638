#include "cli/inside.h"

#include "build_paths.h"

#include <clocale>
#include <cstdlib>
#include <locale>
#include <memory>

namespace {

using cli_test::contents;
using cli_test::inside;
using cli_test::Outcome;
using cli_test::zel;

/// What a German writes: a decimal comma, and points between thousands.
class Comma final : public std::numpunct<char> {
protected:
    [[nodiscard]] char do_decimal_point() const override { return ','; }
    [[nodiscard]] char do_thousands_sep() const override { return '.'; }
    [[nodiscard]] std::string do_grouping() const override { return "\3"; }
};

/// The locale of the process, which a host takes from its user, and the way back.
class ProcessLocale {
public:
    explicit ProcessLocale(const std::string& name) : m_set(std::setlocale(LC_ALL, name.c_str()) != nullptr) {}
    ProcessLocale(const ProcessLocale&) = delete;
    ProcessLocale& operator=(const ProcessLocale&) = delete;
    ~ProcessLocale() { std::setlocale(LC_ALL, "C"); }

    [[nodiscard]] bool isSet() const { return m_set; }

private:
    bool m_set;
};

class StreamLocale {
public:
    StreamLocale() : m_former(std::locale::global(std::locale(std::locale::classic(), std::make_unique<Comma>().release()))) {}
    StreamLocale(const StreamLocale&) = delete;
    StreamLocale& operator=(const StreamLocale&) = delete;
    ~StreamLocale() { std::locale::global(m_former); }

private:
    std::locale m_former;
};

/// The same commands give the same bytes in every locale.
class Locales : public cli_test::CliTest {
protected:
    void SetUp() override
    {
        CliTest::SetUp();
        make("de_DE", "UTF-8");
        make("tr_TR", "UTF-8");
        make("tr_TR", "ISO-8859-9");  // where the small letter of I is no i
        setenv("LOCPATH", folder.c_str(), 1);
    }
    void TearDown() override
    {
        unsetenv("LOCPATH");
        CliTest::TearDown();
    }

    /// Compiles a locale of the C library into the test's folder.
    void make(const std::string& name, const std::string& charset)
    {
        const std::string command = "localedef -i " + name + " -f " + charset + " '" + path(name + "." + charset) + "' 2> '" + path("localedef.txt") + "'";
        const int status = std::system(command.c_str());
        ASSERT_TRUE(status == 0 || status == 256) << "package \"locales\": " << contents(path("localedef.txt"));  // 1: warnings
    }

    /// What a day's work prints and stores.
    [[nodiscard]] std::string work(const std::string& name) const
    {
        const std::string examples = zel::test::sourceFolder() + "/examples/";
        const std::string model = path(name + ".qvx");
        const std::vector<std::string> generate{"generate", model, "--code", "KDS 41 20 : 2022", "--replace", "--scale", "RX=1.25,EX"};
        const auto with = [&generate](std::vector<std::string> more) {
            more.insert(more.begin(), generate.begin(), generate.end());
            return more;
        };
        std::string all;
        for (const std::vector<std::string>& arguments : {std::vector<std::string>{"load", examples + "tower.json", model},
                                                          with({}),
                                                          with({"--format", "csv", "--out", path("out")}),
                                                          with({"--format", "json"}),
                                                          with({"--format", "lcb"}),
                                                          with({"--explain", "GLCB40"}),
                                                          with({"--why-not"}),
                                                          {"dump", model},
                                                          {"combinations", model},
                                                          {"play", "--script", zel::test::sourceFolder() + "/tests/cli/road/road.jsonl"},
                                                          {"play", "--script", zel::test::sourceFolder() + "/tests/journals/underground_sets.jsonl"}}) {
            const Outcome run = inside(arguments);
            all += arguments[0] + "\n" + run.out + run.error;
        }
        all += contents(path("out"));
        std::filesystem::remove(model);
        return all;
    }
};

TEST_F(Locales, EveryCommandGivesTheSameBytesUnderADecimalCommaTurkishAndNone)
{
    const std::string plain = work("model");
    ASSERT_GT(plain.size(), 100000U);
    for (const std::string name : {"de_DE.UTF-8", "tr_TR.UTF-8", "tr_TR.ISO-8859-9"}) {
        const ProcessLocale foreign(name);
        ASSERT_TRUE(foreign.isSet()) << name;
        EXPECT_TRUE(work("model") == plain) << name;
    }
    const StreamLocale comma;
    EXPECT_TRUE(work("model") == plain) << "streams with a comma";
}

}  // namespace
