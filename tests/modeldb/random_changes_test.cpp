#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "model_fixture.h"

#include <algorithm>
#include <map>
#include <random>

namespace zel::test {

/// What the load-case table should hold, in the plainest terms: a list of records in sequence, and the lists of earlier and later states.
struct Reference {
    struct Case {
        Key key;
        std::string name;
        double factor;
        bool operator==(const Case&) const = default;
    };
    using State = std::vector<Case>;

    State state;
    std::vector<State> earlier;
    std::vector<State> later;

    void change(State next)
    {
        earlier.push_back(state);
        later.clear();
        state = std::move(next);
    }
    bool undo() { return move(earlier, later); }
    bool redo() { return move(later, earlier); }
    [[nodiscard]] bool has(const std::string& name) const
    {
        return std::any_of(state.begin(), state.end(), [&](const Case& each) { return each.name == name; });
    }
    [[nodiscard]] Key newKey() const
    {
        Key highest = 0;
        for (const Case& each : state)
            highest = std::max(highest, each.key);
        return highest + 1;
    }

private:
    bool move(std::vector<State>& from, std::vector<State>& to)
    {
        if (from.empty())
            return false;
        to.push_back(state);
        state = from.back();
        from.pop_back();
        return true;
    }
};

/// Random writes on the database and on the reference, side by side.
class RandomChanges {
public:
    RandomChanges(unsigned seed, std::filesystem::path path) : m_random(seed), m_path(std::move(path)), m_model(ModelDocument::create(m_path)) {}

    void step()
    {
        switch (pick(10)) {
        case 0:
        case 1:
        case 2:
            add();
            break;
        case 3:
            modify();
            break;
        case 4:
            remove();
            break;
        case 5:
            reorder();
            break;
        case 6:
            EXPECT_EQ(m_model->Undo() != 0, m_reference.undo());
            break;
        case 7:
            EXPECT_EQ(m_model->Redo() != 0, m_reference.redo());
            break;
        case 8:
            rename();
            break;
        default:
            if (pick(8) == 0)
                reopen();
            break;
        }
    }

    void compare()
    {
        Reference::State found;
        std::vector<Key> keys;
        std::vector<T_STLD_D> records;
        CDataStld cases;
        cases.GetList(keys, records);
        for (std::size_t i = 0; i < keys.size(); ++i) {
            EXPECT_EQ(records[i].no, static_cast<int>(i) + 1);
            EXPECT_EQ(cases.GetKeyByName(records[i].name), keys[i]);
            found.push_back({keys[i], records[i].name, records[i].selfWeightFactor});
        }
        EXPECT_EQ(found, m_reference.state);
    }

    void reopen()
    {
        m_model.reset();
        m_model = ModelDocument::open(m_path);
        m_reference.earlier.clear();
        m_reference.later.clear();
    }

private:
    std::size_t pick(std::size_t count) { return m_random() % count; }
    std::string name() { return std::string(1, static_cast<char>('a' + pick(12))); }

    void add()
    {
        std::vector<T_STLD_D> records;
        Reference::State next = m_reference.state;
        Key key = m_reference.newKey();
        bool refused = false;
        for (std::size_t i = 0; i <= pick(3); ++i) {
            T_STLD_D record = loadCase(name().c_str());
            record.selfWeightFactor = static_cast<double>(pick(5));
            const bool taken = std::any_of(next.begin(), next.end(), [&](const auto& each) { return each.name == record.name; });
            refused = refused || taken;
            next.push_back({key++, record.name, record.selfWeightFactor});
            records.push_back(record);
        }
        EXPECT_EQ(CDataStld().Add(records) == 0, refused);
        if (!refused)
            m_reference.change(std::move(next));
    }

    void modify()
    {
        if (m_reference.state.empty())
            return;
        const std::size_t place = pick(m_reference.state.size());
        CDataStld cases;
        ASSERT_NE(cases.Get(m_reference.state[place].key), 0);
        cases.currentRecord.selfWeightFactor += 1.0;
        EXPECT_NE(cases.Modify(m_reference.state[place].name), 0);
        Reference::State next = m_reference.state;
        next[place].factor += 1.0;
        m_reference.change(std::move(next));
    }

    void rename()
    {
        if (m_reference.state.empty())
            return;
        const std::size_t place = pick(m_reference.state.size());
        const std::string newName = name();
        const bool refused = m_reference.has(newName) && m_reference.state[place].name != newName;
        CDataStld cases;
        ASSERT_NE(cases.Get(m_reference.state[place].key), 0);
        cases.currentRecord.name = newName;
        EXPECT_EQ(cases.Modify(m_reference.state[place].name) == 0, refused);
        if (refused)
            return;
        Reference::State next = m_reference.state;
        next[place].name = newName;
        m_reference.change(std::move(next));
    }

    void remove()
    {
        std::vector<CString> names;
        Reference::State next;
        for (const Reference::Case& each : m_reference.state) {
            if (pick(4) == 0)
                names.push_back(each.name);
            else
                next.push_back(each);
        }
        EXPECT_EQ(CDataStld().Del(names) != 0, !names.empty());
        if (!names.empty())
            m_reference.change(std::move(next));
    }

    void reorder()
    {
        if (m_reference.state.size() < 2)
            return;
        Reference::State rest = m_reference.state;
        std::shuffle(rest.begin(), rest.end(), m_random);
        const std::size_t count = 1 + pick(rest.size() - 1);
        const Reference::State moving(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(count));
        const Key after = pick(3) == 0 ? 0 : rest[count].key;
        std::vector<Key> keys;
        for (const Reference::Case& each : moving)
            keys.push_back(each.key);
        Reference::State next = after == 0 ? moving : Reference::State();
        for (const Reference::Case& each : m_reference.state) {
            if (std::find(keys.begin(), keys.end(), each.key) == keys.end())
                next.push_back(each);
            if (each.key == after)
                next.insert(next.end(), moving.begin(), moving.end());
        }
        EXPECT_NE(CDataStld().ChangeSequence(keys, after), 0);
        if (next != m_reference.state)  // an order that stays is no change
            m_reference.change(std::move(next));
    }

    std::mt19937 m_random;
    std::filesystem::path m_path;
    std::unique_ptr<ModelDocument> m_model;
    Reference m_reference;
};

class RandomSequences : public testing::TestWithParam<unsigned> {};

TEST_P(RandomSequences, OfWritesUndosRedosAndReopeningsLeaveWhatAPlainListWouldHold)
{
    const HeadlessUserInterface host;
    const Folder folder;
    RandomChanges changes(GetParam(), folder / "model.qvx");
    for (int i = 0; i < 250 && !testing::Test::HasFailure(); ++i) {
        changes.step();
        changes.compare();
    }
    changes.reopen();
    changes.compare();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSequences, testing::Range(1U, 13U));

}  // namespace zel::test
