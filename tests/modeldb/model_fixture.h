#pragma once

#include "contract/notices.h"
#include "contract/tables/static_load_case_table.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/messages/message_catalogue.h"
#include "platform/modeldb/model_document.h"
#include "platform/os/file_access.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace zel::test {

/// A folder of its own for one test; it goes with the test.
class Folder {
public:
    Folder()
    {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        m_path = std::filesystem::temp_directory_path() / ("zel-" + std::string(test->test_suite_name()) + "-" + test->name() + "-" + os::processNumber());
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    [[nodiscard]] std::filesystem::path operator/(const char* name) const { return m_path / name; }
    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

inline std::string contentsOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

inline void writeFile(const std::filesystem::path& file, const std::string& contents)
{
    std::ofstream(file, std::ios::binary) << contents;
}

inline T_STLD_D loadCase(const char* name, const char* type = "D")
{
    T_STLD_D record;
    record.name = name;
    record.type = type;
    return record;
}

/// Notes every notice: its hint and its changes, "ADD 1 DL".
class NoticeLog : public CDBUpdateConnector {
public:
    struct Notice {
        long long hint;
        std::vector<std::string> changes;
    };
    std::vector<Notice> notices;

    void OnUpdate(CView* /*sender*/, long long hint, CObject* /*object*/) override
    {
        notices.push_back({hint, {}});
        CViewBuff& buffer = *CDBDoc::GetDocPoint()->GetViewBuff();
        POSITION position = buffer.GetStartBuffer();
        while (position != nullptr) {
            const T_UDRD_BUFFER entry = buffer.GetNextBuffer(position);
            const int offset = entry.updateCode - CDataStld::UR_STLD_ADD;
            if (offset < 0 || offset > 3) {
                notices.back().changes.push_back("code " + std::to_string(entry.updateCode));
                continue;
            }
            static const char* const words[] = {"ADD", "DEL", "MFD", "MFS"};
            CDataStld handle;
            buffer.GetData(entry.dataIndex, handle);
            notices.back().changes.push_back(std::string(words[offset]) + " " + std::to_string(handle.currentKey) + " " + handle.currentRecord.name + " " +
                                             std::to_string(handle.currentRecord.no));
        }
    }
};

/// A model in memory with a headless host.
class InMemoryModel : public testing::Test {
protected:
    InMemoryModel() { MessageCatalogue::builtIn().showKeys(true); }
    ~InMemoryModel() override { MessageCatalogue::builtIn().showKeys(false); }

    HeadlessUserInterface host;
    std::unique_ptr<ModelDocument> model = ModelDocument::inMemory();
};

}  // namespace zel::test
