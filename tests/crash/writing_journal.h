#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace crash_test {

/// What a model holds, in plain words: "case A4" -> its description, "combination C6" -> its items, "units" -> the unit of length.
/// What is not there stands as the empty text.
using Facts = std::map<std::string, std::string>;

/// The facts of a model as `zel dump` prints it.
Facts factsOf(const std::string& dump);

/// A journal of writes on a model that holds the load cases DL and LL (keys 1 and 2), which knows what each of them does: load cases with long
/// descriptions are added, changed and deleted in pairs, combinations are added, the unit of length changes.
class WritingJournal {
public:
    /// @param prefix  the beginning of the names that it makes, so that two journals can write into one model
    explicit WritingJournal(int actions, const std::string& prefix = {});

    [[nodiscard]] const std::string& text() const { return m_text; }
    [[nodiscard]] int actions() const { return static_cast<int>(m_actions.size()); }

    /// What is wrong with the facts of a file after a run that gave these replies; empty when nothing is. Every action that was acknowledged
    /// must be there, none that was refused, and the one after the last reply wholly or not at all. A refusal that says that the step may be
    /// in the file allows both.
    /// @param before  the facts of the model when the run began
    [[nodiscard]] std::string faultOf(const Facts& found, const std::string& replies, const Facts& before) const;

    /// How many commands were answered.
    [[nodiscard]] static int answered(const std::string& replies);

private:
    void act(const std::string& line, Facts effect);

    std::string m_text;
    std::vector<Facts> m_actions;
};

/// The facts of a model with DL and LL in millimetres.
Facts factsOfTwoCases();

/// Whether a sentence leaves open that the file holds the step.
bool leavesOpen(std::string_view sentence);

}  // namespace crash_test
