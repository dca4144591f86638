#include "contract/tables/load_type_tables.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/units.h"
#include "failing_disk.h"
#include "model_fixture.h"
#include "platform/modeldb/record_values.h"

#include <optional>
#include <random>

namespace zel::test {

/// Everything that a model holds, as one text.
std::string everythingIn(ModelDocument& model)
{
    std::string text = std::to_string(model.units().length) + " " + std::to_string(model.units().force);
    for (const TableInfo& table : tableList()) {
        for (const int kind : {0, 1, 2, 3, 4, 5}) {
            for (const Key key : model.table(table.table).keys(kind))
                text += "\n" + CString(table.code) + " " + std::to_string(kind) + " " + std::to_string(key) + " " +
                    std::to_string(rowHash(table, kind, key, model.table(table.table).find(kind, key).get()));
        }
    }
    return text;
}

/// A session of random changes, some of which the disk refuses: load cases and line loads, changes of units, undo and redo.
class FailingSession {
public:
    FailingSession(std::mt19937& random, FailingDisk& disk) : m_random(random), m_disk(disk) {}

    void change(ModelDocument& model)
    {
        if (pick(4) == 0) {
            const auto call = pick(3) == 0 ? FailingDisk::Call::sync : FailingDisk::Call::write;
            m_disk.failAt(call, 1 + static_cast<int>(pick(5)), pick(2) == 0 ? FailingDisk::How::once : FailingDisk::How::forGood);
        }
        const std::string before = everythingIn(model);
        const int done = step(model);
        m_refused += static_cast<int>(m_disk.hasFailed() && done == 0);
        if (done == 0) {
            EXPECT_EQ(everythingIn(model), before) << "a refused change has changed the model";
        }
        m_disk.mend();
    }

    [[nodiscard]] int refused() const { return m_refused; }

private:
    std::size_t pick(std::size_t count) { return m_random() % count; }

    int step(ModelDocument& model)
    {
        switch (pick(7)) {
        case 0:
        case 1:
            return CDataStld().Add(loadCase(("L" + std::to_string(++m_number)).c_str()));
        case 2: {
            T_LNLD_D type;
            type.name = "T" + std::to_string(++m_number);
            type.load1 = static_cast<double>(pick(1000)) / 7.0;
            return CDataLnld().Add(type);
        }
        case 3:
        case 4: {
            const T_UNIT_INDEX units{static_cast<std::int32_t>(pick(lengthUnitCount)), static_cast<std::int32_t>(pick(forceUnitCount))};
            return static_cast<int>(model.GetUnitCtrl()->SetUnitIndexCurrent(units, 1));
        }
        case 5:
            return model.Undo();
        default:
            return model.Redo();
        }
    }

    std::mt19937& m_random;
    FailingDisk& m_disk;
    int m_number = 0;
    int m_refused = 0;
};

TEST(FailingSessions, WithUnitChangesLeaveAFileThatOpensAndHoldsWhatTheProgramHeld)
{
    const HeadlessUserInterface host;
    const Folder folder;
    FailingDisk disk;
    int refused = 0;
    for (unsigned seed = 1; seed <= 20 && !testing::Test::HasFailure(); ++seed) {
        std::mt19937 random(seed);
        const std::filesystem::path path = folder / ("model" + std::to_string(seed) + ".qvx").c_str();
        std::unique_ptr<ModelDocument> model = ModelDocument::create(path);
        FailingSession session(random, disk);
        for (int part = 0; part < 3; ++part) {
            for (int i = 0; i < 12; ++i)
                session.change(*model);
            const std::string held = everythingIn(*model);
            model.reset();
            ASSERT_NO_THROW(model = ModelDocument::open(path)) << "seed " << seed << ", part " << part;
            EXPECT_EQ(everythingIn(*model), held) << "seed " << seed << ", part " << part;
        }
        refused += session.refused();
    }
    EXPECT_GT(refused, 20) << "the disk was to refuse some changes";
}

TEST(FailingSessions, AChangeOfUnitsThatTheDiskRefusedDoesNotSpoilTheNext)
{
    const HeadlessUserInterface host;
    const Folder folder;
    const std::filesystem::path path = folder / "model.qvx";
    FailingDisk disk;
    {
        const auto model = ModelDocument::create(path);
        disk.failAt(FailingDisk::Call::write, 1, FailingDisk::How::once);
        model->GetUnitCtrl()->SetUnitIndexCurrent({T_UNIT_INDEX::M, T_UNIT_INDEX::KN}, 1);
        EXPECT_TRUE(disk.hasFailed());
        EXPECT_EQ(model->units(), T_UNIT_INDEX());
        model->GetUnitCtrl()->SetUnitIndexCurrent({T_UNIT_INDEX::FEET, T_UNIT_INDEX::KIP}, 1);
    }
    EXPECT_EQ(ModelDocument::open(path)->units(), (T_UNIT_INDEX{T_UNIT_INDEX::FEET, T_UNIT_INDEX::KIP}));
}

}  // namespace zel::test
