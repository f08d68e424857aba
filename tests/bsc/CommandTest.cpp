#include "bsc/AbstractData.h"
#include "bsc/Command.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// Records do/undo in a shared journal and its own destruction.
class JournalCommand : public Bsc::Command {
public:
    JournalCommand(std::vector<std::string>& journal, std::string name, int* pDestroyed = nullptr)
        : m_journal(journal), m_name(std::move(name)), m_pDestroyed(pDestroyed) {}
    ~JournalCommand() override { if (m_pDestroyed) ++*m_pDestroyed; }
    void doIt() override { m_journal.push_back("do " + m_name); }
    void undoIt() override { m_journal.push_back("undo " + m_name); }

private:
    std::vector<std::string>& m_journal;
    std::string m_name;
    int* m_pDestroyed;
};

} // namespace

TEST(CompositeCommand, RunsInPushOrderUndoesInReverseAndOwnsItsCommands)
{
    std::vector<std::string> journal;
    int destroyed = 0;
    {
        Bsc::CompositeCommand composite;
        composite.push_back(new JournalCommand(journal, "a", &destroyed));
        composite.push_back(new JournalCommand(journal, "b", &destroyed));
        composite.push_back(nullptr);
        auto* nested = new Bsc::CompositeCommand;
        nested->push_back(new JournalCommand(journal, "c1", &destroyed));
        nested->push_back(new JournalCommand(journal, "c2", &destroyed));
        composite.push_back(nested);
        EXPECT_TRUE(journal.empty()) << "pushing must not run a command";
        EXPECT_EQ(composite.size(), 3u);

        composite.doIt();
        composite.undoIt();
        composite.doIt();
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 4);
    std::vector<std::string> const expected{
        "do a", "do b", "do c1", "do c2",
        "undo c2", "undo c1", "undo b", "undo a",
        "do a", "do b", "do c1", "do c2"};
    EXPECT_EQ(journal, expected);
}

TEST(AbstractData, CopiesAndReleasesThroughItsFunctions)
{
    Bsc::AbstractData empty;
    EXPECT_EQ(empty.pValue, nullptr);
    EXPECT_EQ(empty.pType, nullptr);

    Bsc::AbstractData a = Bsc::AbstractData::make(std::string("value"));
    ASSERT_NE(a.get<std::string>(), nullptr);
    EXPECT_EQ(*a.pType, typeid(std::string));
    EXPECT_EQ(a.get<int>(), nullptr);

    Bsc::AbstractData b = Bsc::AbstractData::make(42);
    b = a;
    ASSERT_NE(b.get<std::string>(), nullptr);
    EXPECT_NE(b.pValue, a.pValue) << "assignment holds a copy, not the same object";
    *b.get<std::string>() = "changed";
    EXPECT_EQ(*a.get<std::string>(), "value");

    b = b;
    EXPECT_EQ(*b.get<std::string>(), "changed");
    b = empty;
    EXPECT_EQ(b.pValue, nullptr);
}
