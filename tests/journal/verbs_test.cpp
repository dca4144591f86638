#include "journal/recorder_fixture.h"

#include "build_paths.h"
#include "journal/step_arguments.h"
#include "journal/step_commands.h"
#include "journal/verbs.h"

#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include <gmock/gmock.h>

namespace journal_test {

using testing::HasSubstr;
using testing::Not;

/// Lines of docs/journals.md.
std::vector<std::string> manual()
{
    std::ifstream file(zel::test::sourceFolder() + "/docs/journals.md");
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

/// What stands in quotes of code in a text.
std::set<std::string> quoted(const std::string& text)
{
    static const std::regex code("`([^`]+)`");
    std::set<std::string> names;
    for (std::sregex_iterator at(text.begin(), text.end(), code), end; at != end; ++at)
        names.insert((*at)[1].str());
    return names;
}

/// Names of commands with the text that tells their fields: the rows of the table "Commands", and the paragraph on `db`.
std::map<std::string, std::string> commandsOfTheManual()
{
    std::map<std::string, std::string> commands;
    bool inTable = false;
    bool inParagraph = false;
    std::string db;
    for (const std::string& line : manual()) {
        inTable = line.starts_with("| `do` |") || (inTable && line.starts_with("|"));
        inParagraph = line.starts_with("`db` with `op`") || (inParagraph && !line.empty());
        if (inParagraph)
            db += line;
        if (!inTable || !line.starts_with("| `") || line.starts_with("| `do`"))
            continue;
        const std::size_t first = line.find('|', 1);
        for (const std::string& name : quoted(line.substr(0, first)))
            commands[name] = line.substr(first, line.find('|', first + 1) - first);
    }
    commands["db"] += db;
    return commands;
}

TEST(Verbs, AreInTheManualWithAllTheirFields)
{
    const std::map<std::string, std::string> commands = commandsOfTheManual();
    for (const zel::VerbRow& verb : zel::verbTable()) {
        const auto found = commands.find(std::string(verb.name));
        if (found == commands.end()) {
            ADD_FAILURE() << verb.name << " is not in the table \"Commands\" of docs/journals.md";
            continue;
        }
        const std::set<std::string> fields = quoted(found->second);
        for (const std::string_view field : verb.fields)
            EXPECT_TRUE(fields.contains(std::string(field))) << "docs/journals.md: " << verb.name << " has also the field " << field;
    }
    for (const auto& [name, fields] : commands)
        EXPECT_NE(zel::findVerb(name), nullptr) << "docs/journals.md has the command " << name << ", the player has not";
}

TEST(Verbs, HaveARowEachWithANameOfItsOwn)
{
    std::set<std::string_view> names;
    std::set<zel::Verb> verbs;
    for (const zel::VerbRow& row : zel::verbTable()) {
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        EXPECT_TRUE(verbs.insert(row.verb).second) << row.name;
        EXPECT_EQ(&zel::rowOf(row.verb), zel::findVerb(row.name));
    }
    EXPECT_EQ(zel::findVerb("tik"), nullptr);
}

/// A control of the form of samples for which the verb has a meaning.
zel::Control& controlFor(const zel::VerbRow& verb, GridForm& form)
{
    switch (verb.fits) {
    case zel::Fits::tabs:
        return form.tabs;
    case zel::Fits::grids:
    case zel::Fits::sortableGrids:
        return form.grid;
    case zel::Fits::everything:
        break;
    }
    return form.name;
}

class VerbsOfControls : public RecorderTest {};

/// The step as a command, and the step that is read from it, have all arguments of the verb but those `without`.
void expectSameBack(const zel::UserStep& full, GridForm& form, const std::set<std::string_view>& without)
{
    const zel::VerbRow& verb = zel::rowOf(full.verb);
    const zel::Control& control = controlFor(verb, form);
    const zel::JournalCommand command(zel::printJson(zel::commandOf(full, control)));
    const zel::UserStep fresh{verb.verb};
    zel::UserStep read = fresh;
    for (const zel::StepArgument* argument : verb.arguments) {
        EXPECT_EQ(command.has(argument->name), !without.contains(argument->name)) << verb.name << ", " << argument->name;
        argument->read(command, control, read);
    }
    EXPECT_EQ(zel::commandOf(read, control), zel::commandOf(full, control)) << verb.name;
    EXPECT_EQ(read == fresh, verb.arguments.empty()) << verb.name << " reads nothing";
    for (const auto& member : command.json().items())
        EXPECT_TRUE(member.key() == "do" || std::ranges::count(verb.fields, member.key()) == 1) << verb.name << " is written with " << member.key();
}

TEST_F(VerbsOfControls, GoIntoTheJournalAndBackWithoutALoss)
{
    begin();
    auto* form = new GridForm;
    for (const zel::VerbRow& verb : zel::verbTable()) {
        if (verb.run == nullptr)
            continue;
        // Every member that the verb reads, with a value that it does not start with; objects stand in place of keys.
        zel::UserStep full{verb.verb, CString("B1"), {2, 0}, 1, 2, CTBGrid::append, "3.5", true, -1, zel::UserKey::tab, {7, 9}, std::nullopt, true};
        expectSameBack(full, *form, {"objects"});
        full.objects = zel::PickedObjects{{1}, {2}, {3}};
        expectSameBack(full, *form, {"keys"});
    }
}

TEST_F(VerbsOfControls, AreRefusedByAControlForWhichTheyHaveNoMeaning)
{
    begin();
    auto* form = new GridForm;
    EXPECT_EQ(hand.act(form->name, {zel::Verb::leaveRow}).refusal, "\"Name\" is no grid that takes leave_row");
    EXPECT_EQ(hand.act(form->name, {.verb = zel::Verb::current, .row = 0, .column = 0}).refusal, "\"Name\" is no grid that takes current");
    EXPECT_EQ(hand.act(form->grid, {.verb = zel::Verb::tab, .value = 1.0}).refusal, "\"members\" has no tabs");
    EXPECT_EQ(zel::perform(form->name, {zel::Verb::undo}).refusal, "\"undo\" is no step at a control");
}

TEST_F(VerbsOfControls, AreAllCarriedOutByThePlayer)
{
    dialogs = [] { new GridForm; };
    for (const zel::VerbRow& verb : zel::verbTable()) {
        const std::string transcript = play("{\"do\": \"" + std::string(verb.name) + "\"}\n").transcript;
        EXPECT_THAT(transcript, Not(HasSubstr("there is no command"))) << verb.name;
        EXPECT_THAT(transcript, Not(HasSubstr("is no command of a control"))) << verb.name;
    }
}

}  // namespace journal_test
