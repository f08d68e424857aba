#include "bsc/AbstractData.h"
#include "bsc/Command.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace {

// Records do/undo in a shared journal and counts its own destruction.
class JournalCommand : public Bsc::Command {
public:
    JournalCommand(std::vector<std::string>& journal, std::string name, int& destroyed)
        : m_journal(journal), m_name(std::move(name)), m_destroyed(destroyed) {}
    ~JournalCommand() override { ++m_destroyed; }
    void doIt() override { m_journal.push_back("do " + m_name); }
    void undoIt() override { m_journal.push_back("undo " + m_name); }

private:
    std::vector<std::string>& m_journal;
    std::string m_name;
    int& m_destroyed;
};

} // namespace

TEST(CompositeCommand, RunsInPushOrderUndoesInReverseAndOwnsItsCommands)
{
    std::vector<std::string> journal;
    int destroyed = 0;
    {
        auto const command = [&](char const* name) { return new JournalCommand(journal, name, destroyed); };
        auto* nested = new Bsc::CompositeCommand;
        nested->push_back(command("c1"));
        nested->push_back(command("c2"));
        Bsc::CompositeCommand composite;
        for (Bsc::Command* each : std::initializer_list<Bsc::Command*>{command("a"), command("b"), nullptr, nested})
            composite.push_back(each);
        EXPECT_TRUE(journal.empty()) << "pushing must not run a command";
        EXPECT_EQ(composite.size(), 3u);
        composite.doIt();
        composite.undoIt();
        composite.doIt();
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 4);
    EXPECT_EQ(journal, (std::vector<std::string>{"do a", "do b", "do c1", "do c2", "undo c2", "undo c1", "undo b",
                                                 "undo a", "do a", "do b", "do c1", "do c2"}));
}

TEST(AbstractData, CopiesAndReleasesThroughItsFunctions)
{
    Bsc::AbstractData const empty;
    EXPECT_TRUE(empty.pValue == nullptr && empty.pType == nullptr);
    Bsc::AbstractData a = Bsc::AbstractData::make(std::string("value"));
    ASSERT_NE(a.get<std::string>(), nullptr);
    EXPECT_TRUE(*a.pType == typeid(std::string) && a.get<int>() == nullptr);
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
