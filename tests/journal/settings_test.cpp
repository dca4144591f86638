#include "command/paged_dialog.h"
#include "contract/forms/dialog_names.h"
#include "contract/forms/mouse_edit.h"
#include "contract/forms/picked_objects.h"
#include "contract/init_ctrl.h"
#include "journal/open_commands.h"
#include "journal/recorder_fixture.h"

#include <gmock/gmock.h>

namespace journal_test {

using testing::ElementsAre;
using testing::HasSubstr;

class JournalSettings : public RecorderTest {
protected:
    T_PREFERENCE preference()
    {
        T_PREFERENCE read;
        document->GetInitCtrl()->GetPreference(read);
        return read;
    }
    T_ANALOPTION analysisOption()
    {
        T_ANALOPTION read;
        document->GetInitCtrl()->GetAnalysisOption(read);
        return read;
    }
    void setSpace(double factor)
    {
        T_PREFERENCE changed = preference();
        changed.minPileSpaceFactor = factor;
        document->GetInitCtrl()->SetPreference(changed);
    }
    Json reply(const std::string& command) { return Json::parse(play(command + "\n").transcript); }
};

TEST_F(JournalSettings, AreReadWithAllFieldsOfBothRecords)
{
    const Json expected = Json::parse(R"json({"n": 1, "do": "settings", "result": {
        "analysisOption": {"solver": 3, "memoryMode": 0, "memoryMBytes": 256, "multiProcessor": 0, "processors": 1},
        "preference": {"sectionDbName": "", "steelStandard": "", "concreteStandard": "KS01(RC)", "concreteCode": "",
                       "minPileSpaceFactor": 2.5, "standardPileSpaceFactor": 2.5}}, "events": []})json");
    EXPECT_EQ(reply(R"({"do": "settings"})"), expected);
}

TEST_F(JournalSettings, ChangeTheFieldsThatAreNamedAndNoOthers)
{
    const Json result = reply(R"({"do": "settings", "put": {"analysisOption": {"processors": 4}, "preference": {"concreteCode": "A"}}})").at("result");
    EXPECT_EQ(result.at("analysisOption").at("processors"), 4);
    EXPECT_EQ(result.at("analysisOption").at("solver"), 3);
    EXPECT_EQ(result.at("preference").at("concreteCode"), "A");
    EXPECT_EQ(result.at("preference").at("concreteStandard"), "KS01(RC)");
}

TEST_F(JournalSettings, AreLeftAloneByACommandWithAFault)
{
    const std::string journal = R"({"do": "settings", "put": {"analysisOption": {"processors": 4}, "preference": {"concreteCod": "A"}}}
{"do": "settings", "put": {"preferences": {}}}
{"do": "settings", "put": 5}
{"do": "settings"}
)";
    const std::string transcript = play(journal).transcript;
    EXPECT_THAT(transcript, HasSubstr("put.preference.concreteCod: there is no such field; did you mean"));
    EXPECT_THAT(transcript, HasSubstr("put.preferences: there are no such settings; did you mean"));
    EXPECT_THAT(transcript, HasSubstr("put: must be an object, not"));
    EXPECT_THAT(transcript, HasSubstr("\"processors\": 1"));
}

TEST_F(JournalSettings, BeginWithTheDefaultsAndAreTheUsersAgainAfterwards)
{
    start = [] {
        auto model = zel::ModelDocument::inMemory();
        T_ANALOPTION users;
        users.processors = 8;
        model->GetInitCtrl()->SetAnalysisOption(users);
        return model;
    };
    const std::string transcript = play("{\"do\": \"settings\"}\n{\"do\": \"settings\", \"put\": {\"analysisOption\": {\"solver\": 0}}}\n").transcript;
    EXPECT_THAT(transcript, HasSubstr("\"processors\": 1"));
    EXPECT_EQ(analysisOption().processors, 8);
    EXPECT_EQ(analysisOption().solver, 3);
}

TEST_F(JournalSettings, StandInARecordingAtItsStartAndAfterEachChange)
{
    start = [] {
        auto model = zel::ModelDocument::inMemory();
        T_PREFERENCE users;
        users.concreteCode = "B";
        model->GetInitCtrl()->SetPreference(users);
        return model;
    };
    const Recording recording = recordOnly([this] {
        hand.recorder()->writeStart(commands);
        hand.undo(*document);
        setSpace(3.0);
        hand.redo(*document);
        hand.undo(*document);
        setSpace(4.0);
    });
    EXPECT_THAT(recording.lines(),
                ElementsAre(R"({"do": "settings", "put": {"preference": {"concreteCode": "B"}}})", R"({"do": "undo"})",
                            R"({"do": "settings", "put": {"preference": {"minPileSpaceFactor": 3.0}}})", R"({"do": "redo"})", R"({"do": "undo"})",
                            R"({"do": "settings", "put": {"preference": {"minPileSpaceFactor": 4.0}}})"));
    compareLines(play(recording.journal).transcript, recording.transcript, recording.journal);
}

TEST_F(JournalSettings, AreNotWrittenWhereTheyAreTheDefaults)
{
    const Recording recording = recordOnly([this] {
        hand.recorder()->writeStart(commands);
        hand.undo(*document);
    });
    EXPECT_THAT(recording.lines(), ElementsAre(R"({"do": "undo"})"));
}

class ViewOfAJournal : public RecorderTest {};

TEST_F(ViewOfAJournal, IsToldWhereACommandChangesNothing)
{
    start = [] {
        auto model = zel::ModelDocument::inMemory();
        zel::storeRows(*model, zel::rowsOfModelJson(Json::parse(R"({"format": "zel-model", "version": 1, "PONT": [{"key": 1}, {"key": 2}, {"key": 3}]})")));
        return model;
    };
    const std::string journal = R"({"do": "view"}
{"do": "view", "select": {"points": [3, 1]}}
{"do": "view", "mode": "model"}
{"do": "view"}
)";
    const std::string transcript = play(journal).transcript;
    EXPECT_THAT(
        transcript,
        HasSubstr(R"({"n": 1, "do": "view", "result": {"selected": {}, "active": null, "objectsOnly": false, "mode": -1, "post": false}, "events": []})"));
    EXPECT_THAT(
        transcript,
        HasSubstr(
            R"("do": "view", "result": {"selected": {"points": [1, 3]}, "active": null, "objectsOnly": false, "mode": -1, "post": true}, "events": []})"));
}

/// A dialog with a pick field that takes two kinds of objects.
class PickForm final : public CGlobalModeless {
public:
    class Several final : public CMouseEdit, public zel::ITakesObjects {
    public:
        using CMouseEdit::CMouseEdit;
        zel::Taken pickObjects(const zel::PickedObjects& objects, bool closed) override
        {
            taken = objects;
            return pick(objects.lines, closed);
        }
        zel::PickedObjects taken;
    };

    PickForm() : CGlobalModeless(70004, "Pick")
    {
        nodes.SetAttNodeList();
        Create();
        ShowWindow();
        SetActiveWindow();
        made = this;
    }
    ~PickForm() override { made = nullptr; }

    static inline PickForm* made = nullptr;

    CMouseEdit points{*this, "points", "Points"};
    CMouseEdit nodes{*this, "nodes", "Nodes"};
    Several several{*this, "several", "Several"};
    CButton preferences{*this, "preferences", "Preferences...", [] { CPrefer::SetUpPrefer(3); }};
};

class PickOfObjects : public RecorderTest {
protected:
    PickOfObjects()
    {
        dialogs = [] { new PickForm; };
    }
};

TEST_F(PickOfObjects, GoesToAFieldByKindOfObject)
{
    const std::string journal = R"({"do": "pick", "control": "Several", "objects": {"points": [4], "lines": [7, 9], "areas": [2]}}
{"do": "pick", "control": "Points", "objects": {"points": [5, 6]}, "closed": true}
{"do": "pick", "control": "Points", "objects": {"lines": [7]}}
{"do": "pick", "control": "Nodes", "objects": {"points": [7]}}
{"do": "pick", "control": "Points", "objects": {"nodes": [7]}}
{"do": "pick", "control": "Points", "objects": {"points": [7]}, "keys": [7]}
{"do": "pick", "control": "Preferences...", "objects": {"points": [7]}}
)";
    const std::string transcript = play(journal).transcript;
    EXPECT_EQ(PickForm::made->several.taken, (zel::PickedObjects{{4}, {7, 9}, {2}}));
    EXPECT_EQ(PickForm::made->points.GetWindowText(), "5,6");
    EXPECT_THAT(transcript, HasSubstr("\"Points\\\" takes points, no lines and no areas"));
    EXPECT_THAT(transcript, HasSubstr("\"Nodes\\\" takes nodes, no objects"));
    EXPECT_THAT(transcript, HasSubstr("objects: must be points, lines and areas"));
    EXPECT_THAT(transcript, HasSubstr("objects: one of keys and objects is taken, not both"));
    EXPECT_THAT(transcript, HasSubstr("\"n\": 7, \"do\": \"pick\", \"error\""));
}

TEST_F(PickOfObjects, IsRecordedAsItWasPicked)
{
    const Recording recording = record([this] {
        EXPECT_TRUE(hand.act(PickForm::made->several, {.verb = zel::Verb::pick, .objects = zel::PickedObjects{{}, {8}, {1}}}));
    });
    EXPECT_THAT(recording.lines(), ElementsAre(R"({"do": "pick", "control": "Several", "objects": {"lines": [8], "areas": [1]}, "closed": false})"));
}

TEST_F(PickOfObjects, AndPreferencesThatADialogAsksForAreTold)
{
    const Recording recording = record([this] { press("Preferences..."); });
    EXPECT_THAT(recording.transcript, HasSubstr(R"("events": [{"event": "preferences", "page": 3}])"));
    EXPECT_THAT(host.preferencePages, ElementsAre(3)) << "the host shows them while it is recorded, and not while the journal plays";
}

/// A dialog with pages that opens beside the views.
class PagedForm final : public CGlobalModeless, public zel::IPagedDialog {
public:
    PagedForm() : CGlobalModeless(70005, "Paged") { made = this; }
    ~PagedForm() override { made = nullptr; }
    void ActivateTab(int page) override { pages.push_back(page); }

    static inline PagedForm* made = nullptr;
    std::vector<int> pages;
};
ZEL_DIALOG_NAME(PagedForm)

class OpenAtAPage : public RecorderTest {};

TEST_F(OpenAtAPage, ShowsThePageOfADialogThatHasPages)
{
    begin();
    zel::openDialog(std::make_unique<PagedForm>(), {0, 2});
    EXPECT_THAT(PagedForm::made->pages, ElementsAre(2));
    EXPECT_TRUE(PagedForm::made->IsWindow());
}

TEST_F(OpenAtAPage, IsRefusedByADialogWithoutPagesBeforeItOpens)
{
    const std::string journal = R"({"do": "open", "class": "CDgnGenSeisFactor", "args": {"page": 1}}
{"do": "open", "class": "CDgnGenSeisFactor", "args": {"page": -1}}
{"do": "open", "class": "CDgnGenSeisFactor", "args": {"sheet": 1}}
{"do": "dialogs"}
)";
    const std::string transcript = play(journal).transcript;
    EXPECT_THAT(transcript, HasSubstr(R"("error": "args: CDgnGenSeisFactor takes no page", "events": []})"));
    EXPECT_THAT(transcript, HasSubstr("args.page: must be a whole number from 0"));
    EXPECT_THAT(transcript, HasSubstr("args: must be an object with the key of an object or with a page"));
    EXPECT_THAT(transcript, HasSubstr(R"("do": "dialogs", "result": [])"));
}

}  // namespace journal_test
