#pragma once

#include "contract/forms/dialog_names.h"
#include "contract/forms/find_control.h"
#include "contract/forms/open_dialogs.h"
#include "forms/grid_fixture.h"
#include "journal/dialog_commands.h"
#include "journal/form_json.h"
#include "journal/host_commands.h"
#include "journal/journal_player.h"
#include "journal/journal_recorder.h"
#include "journal/test_dialogs.h"
#include "journal/user_hand.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/modeldb/model_document.h"
#include "platform/modeldb/model_json.h"

#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace journal_test {

using zel::Json;

/// A form with a grid of three members, an edit field and tabs without pages.
class GridForm final : public CGlobalModeless {
public:
    GridForm() : CGlobalModeless(70003, "Grid")
    {
        grid.data = {{1, "B1", 2.5, "beam", 1}, {2, "B2", 3.0, "beam", 0}, {3, "C1", 4.0, "column", 1}};
        tabs.AddTab("First");
        tabs.AddTab("Second");
        grid.SetRowDrag(true);
        Create();
        ShowWindow();
        SetActiveWindow();
        grid.Initialize();
    }

    zel::test::MemberGrid grid{*this};
    CEdit name{*this, "name", "Name :"};
    CDlgTabCtrl tabs{*this, "tabs"};
    CButton done{*this, "done", "Done"};
};

ZEL_DIALOG_NAME(GridForm)

/// A host that lets a person answer modal dialogs by further steps.
class RecordedHost final : public zel::HeadlessUserInterface {
public:
    std::function<void(CDialog&)> inEachModal;  ///< used up by the next one, unless it sets itself again

    void runModal(CDialog& dialog) override
    {
        if (const auto steps = std::exchange(inEachModal, nullptr))
            steps(dialog);
        if (!dialog.hasEnded())
            dialog.EndDialog(IDCANCEL);  // the step that ends it is missing: the journal will lack it, too
    }
};

struct Recording {
    std::string journal;
    std::string transcript;

    /// Lines of the journal.
    [[nodiscard]] std::vector<std::string> lines() const
    {
        std::vector<std::string> all;
        std::istringstream in(journal);
        for (std::string line; std::getline(in, line);)
            all.push_back(line);
        return all;
    }
};

/// What is left on the screen and in the model.
struct Outcome {
    std::string dump;
    std::string forms;
    std::string transcript;
};

/// Steps of a hand are recorded, and what was written is played on a second model.
class RecorderTest : public testing::Test {
protected:
    ~RecorderTest() override { zel::closeAllDialogs(); }

    /// Makes the model and the dialogs that are there before the recording begins.
    std::function<std::unique_ptr<zel::ModelDocument>()> start = [] { return zel::ModelDocument::inMemory(); };
    std::function<void()> dialogs = [] {};

    /// Records the steps and checks that the journal gives the same transcript, the same model and the same open forms when it is played.
    Recording record(const std::function<void()>& steps)
    {
        const Recording recording = recordOnly(steps);
        const Outcome recorded{dump(), openForms(), recording.transcript};
        const Outcome played = play(recording.journal);
        EXPECT_EQ(played.dump, recorded.dump) << recording.journal;
        EXPECT_EQ(played.forms, recorded.forms) << recording.journal;
        compareLines(played.transcript, recorded.transcript, recording.journal);
        return recording;
    }

    Recording recordOnly(const std::function<void()>& steps)
    {
        begin();
        std::ostringstream journal;
        std::ostringstream transcript;
        zel::JournalRecorder recorder(*document, journal, {&transcript, {}});
        hand.setRecorder(&recorder);
        steps();
        hand.setRecorder(nullptr);
        recorder.stop();
        return {journal.str(), transcript.str()};
    }

    void begin()
    {
        zel::closeAllDialogs();
        document.reset();
        document = start();
        commands = {};
        host.onCommand = [this](unsigned number) { commands.run(number); };
        dialogs();
    }

    /// Lets what was posted happen, as a host does when a step is over.
    void settle()
    {
        host.runPosted();
        zel::deleteClosedDialogs();
    }

    Outcome play(const std::string& journal)
    {
        begin();
        std::istringstream in(journal);
        std::ostringstream out;
        {
            zel::JournalPlayer player(*document, in, out);
            player.play();
        }
        return {dump(), openForms(), out.str()};
    }

    std::string dump()
    {
        std::ostringstream text;
        zel::printModelJson(*document, text);
        return text.str();
    }

    static std::string openForms()
    {
        std::string text;
        for (const CDialog* dialog : zel::openDialogs())
            text += zel::printJson(zel::formToJson(*dialog)) + "\n";
        return text;
    }

    static void compareLines(const std::string& played, const std::string& recorded, const std::string& journal)
    {
        std::istringstream left(played);
        std::istringstream right(recorded);
        std::string one;
        std::string other;
        while (true) {
            const bool more = static_cast<bool>(std::getline(left, one));
            ASSERT_EQ(more, static_cast<bool>(std::getline(right, other))) << one << other << "\n" << journal;
            if (!more)
                return;
            ASSERT_EQ(one, other) << journal;
        }
    }

    static CDialog& front() { return *zel::activeDialog(); }
    /// A control of the active dialog by name.
    static zel::Control& at(std::string_view name)
    {
        const zel::FoundControl found = zel::findControl(front(), name);
        if (found.control == nullptr)
            throw std::runtime_error(found.error);
        return *found.control;
    }
    template <class Kind> static Kind& at(std::string_view name) { return dynamic_cast<Kind&>(at(name)); }

    void type(std::string_view name, const std::string& text)
    {
        auto& field = at<CEdit>(name);
        for (std::size_t length = 1; length <= text.size(); ++length)
            EXPECT_TRUE(hand.type(field, text.substr(0, length)));
    }
    void press(std::string_view name)
    {
        EXPECT_TRUE(hand.act(at(name), {zel::Verb::press}));
        settle();
    }

    RecordedHost host;
    zel::UserHand hand;
    zel::HostCommands commands;
    std::unique_ptr<zel::ModelDocument> document;
};

}  // namespace journal_test
