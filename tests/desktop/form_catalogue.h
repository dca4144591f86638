#pragma once

#include "desktop/forms/form_window.h"
#include "desktop/host/main_window.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace desktop_test {

/// A form to look at: a journal that opens it over the tower example.
struct FormState {
    std::string name;
    std::string journal;
};

void PrintTo(const FormState& state, std::ostream* out);

/// Every dialog class in the tree that an id, a number or a name opens over the tower example, as it opens.
std::vector<FormState> openedForms();
/// The forms of docs/forms: those journals lead to the others, and to further states.
std::vector<FormState> picturedForms();
/// Both.
std::vector<FormState> allForms();
/// The classes behind openedForms().
std::vector<std::string> dialogClasses();

/// Plays the journal in the window and runs `step` on the form in front at its end; then all forms are closed. False if none is open there.
bool atForm(zel::desktop::MainWindow& window, const FormState& state, const std::function<void(zel::desktop::FormWindow&)>& step);

/// A text that can stand in the name of a test.
std::string testName(const std::string& text);

}  // namespace desktop_test
