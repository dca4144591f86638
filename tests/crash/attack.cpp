#include "crash/attack.h"

#include <cstdlib>
#include <iostream>
#include <sstream>

namespace crash_test {

namespace fs = std::filesystem;

namespace {

const char* variable(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

}  // namespace

Folder filesIn(const fs::path& folder)
{
    Folder files;
    for (const auto& entry : fs::directory_iterator(folder))
        files[entry.path().filename().string()] = contents(entry.path());
    return files;
}

std::string stateOf(const std::string& model)
{
    if (!fs::exists(model))
        return "absent";
    const Outcome dump = zel({"dump", model});
    return dump.code == 0 ? dump.out : "unreadable: " + dump.error;
}

testing::AssertionResult orderly(const Outcome& run)
{
    if (run.signal != 0)
        return testing::AssertionFailure() << (run.signal == SIGALRM ? "it hung" : "signal " + std::to_string(run.signal)) << "\n" << run.error;
    if (run.error.find("Sanitizer") != std::string::npos || run.error.find("runtime error:") != std::string::npos)
        return testing::AssertionFailure() << run.error;
    if (run.code < 0 || run.code > 2)
        return testing::AssertionFailure() << "exit status " << run.code << "\n" << run.error;
    return testing::AssertionSuccess();
}

testing::AssertionResult same(const Folder& left, const Folder& right)
{
    for (const auto& [name, bytes] : left) {
        const auto other = right.find(name);
        if (other == right.end())
            return testing::AssertionFailure() << name << " has gone";
        if (other->second != bytes)
            return testing::AssertionFailure() << name << " was changed";
    }
    for (const auto& file : right) {
        if (!left.contains(file.first))
            return testing::AssertionFailure() << file.first << " is new";
    }
    return testing::AssertionSuccess();
}

void Attack::SetUp()
{
    CliTest::SetUp();
    const char* seed = variable("ZEL_ATTACK_SEED");
    m_seed = *seed != '\0' ? std::strtoull(seed, nullptr, 10) : std::random_device{}();
    m_random.seed(m_seed);
    fs::create_directory(path("model"));
}

void Attack::TearDown()
{
    std::ostringstream line;
    for (const auto& [what, number] : m_counts)
        line << ", " << what << ": " << number;
    std::cout << "seed " << m_seed << line.str() << std::endl;
    CliTest::TearDown();
}

int Attack::rounds(int usual)
{
    const char* asked = variable("ZEL_ATTACK_ROUNDS");
    return *asked != '\0' ? std::atoi(asked) : usual;
}

bool Attack::exhaustive()
{
    return *variable("ZEL_ATTACK_ALL") == '1';
}

void Attack::clearModelFolder() const
{
    for (const auto& entry : fs::directory_iterator(path("model")))
        fs::remove_all(entry.path());
}

void Attack::restore(const Folder& files) const
{
    clearModelFolder();
    for (const auto& [name, bytes] : files)
        cli_test::write(path("model/" + name), bytes);
}

Environment Attack::preloaded(const Fault& fault) const
{
    const char* options = variable("ASAN_OPTIONS");
    Environment environment{"LD_PRELOAD=" + zel::test::programFolder() + "/../lib/libzel_failing_calls.so",
                            "ASAN_OPTIONS=" + std::string(options) + (*options != '\0' ? ":" : "") + "verify_asan_link_order=0",
                            "ZEL_FAIL_FOLDER=" + path("model"),
                            "ZEL_FAIL_CALL=" + fault.call,
                            "ZEL_FAIL_AT=" + std::to_string(fault.at),
                            "ZEL_FAIL_WITH=" + fault.with};
    if (fault.always)
        environment.emplace_back("ZEL_FAIL_ALWAYS=1");
    if (fault.space >= 0)
        environment.push_back("ZEL_FAIL_SPACE=" + std::to_string(fault.space));
    return environment;
}

std::map<std::string, long> Attack::callsOf(const std::vector<std::string>& arguments, const std::string& input) const
{
    Environment environment = preloaded({});
    environment.push_back("ZEL_FAIL_REPORT=" + path("calls"));
    fs::remove(path("calls"));
    const Outcome run = zel(arguments, input, environment);
    EXPECT_EQ(run.code, 0) << run.error;
    std::map<std::string, long> calls;
    std::istringstream report(contents(path("calls")));
    std::string call;
    for (long number = 0; report >> call >> number;)
        calls[call] = number;
    EXPECT_EQ(calls.size(), callKinds.size()) << "the preloaded library gave no report";
    return calls;
}

void Attack::makeTwoCases(const std::string& name) const
{
    const Outcome made = zel({"load", "-", model(name)}, R"({"format": "zel-model", "version": 1, "STLD": [{"name": "DL"}, {"name": "LL", "type": "L"}]})");
    ASSERT_EQ(made.code, 0) << made.error;
}

void Attack::makeTower(const std::string& name) const
{
    const Outcome made = zel({"load", towerJson, model(name)});
    ASSERT_EQ(made.code, 0) << made.error;
}

}  // namespace crash_test
