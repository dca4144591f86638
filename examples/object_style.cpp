// Generates load combinations with the object-style generator, which no command of the system calls.
//
//     object_style_example MODEL.qvx CODE [--replace]
//
// stores the combinations of the general kind in the model and writes lcomb.out into the working directory. Exit status 0 when
// combinations were stored, 1 when none was, 2 for a wrong call.

#include "object_style/jhauto_gen_loadcomb.h"
#include "object_style/tables/code_list.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/modeldb/file_refusal.h"
#include "platform/modeldb/model_document.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr int generalKind = 1;
constexpr int nothingStored = 1;
constexpr int wrongCall = 2;

bool isCode(const std::string& name)
{
    const auto& codes = zel::object_style::codeList;
    return std::any_of(std::begin(codes), std::end(codes), [&](const auto& code) { return code.name == name; });
}

int explainCall()
{
    std::cerr << "object_style_example MODEL.qvx CODE [--replace]\nCodes:";
    for (const auto& code : zel::object_style::codeList)
        std::cerr << ' ' << code.name;
    std::cerr << '\n';
    return wrongCall;
}

int generate(const std::string& model, const std::string& code, int mode)
{
    zel::HeadlessUserInterface host;
    const auto document = zel::ModelDocument::open(model);
    JhautoGenLoadcomb generator(1);
    const int stored = generator.Run(generalKind, code, mode);
    for (const zel::HeadlessUserInterface::Box& box : host.boxes)
        std::cerr << box.text << '\n';
    for (const CString& line : host.outputs)
        std::cerr << line << '\n';
    if (!generator.PrintReport()) {
        std::cerr << generator.reportName() << " can't be written into this folder.\n";
        return nothingStored;
    }
    std::cout << stored << " load combinations of " << code << ", report in " << generator.reportName() << '\n';
    return stored > 0 ? 0 : nothingStored;
}

}  // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> words(argv + 1, argv + argc);
    const bool replace = words.size() == 3 && words[2] == "--replace";
    if ((words.size() != 2 && !replace) || !isCode(words[1]))
        return explainCall();
    try {
        return generate(words[0], words[1], replace ? JhautoGenLoadcomb::replaceMode : JhautoGenLoadcomb::addMode);
    } catch (const zel::FileRefusal& refusal) {
        std::cerr << refusal.what() << '\n';
    }
    return nothingStored;
}
