#pragma once
#include <cstddef>
#include <memory>
#include <vector>

namespace Bsc {

/// One undoable step. `doIt` applies it (again, after an undo); `undoIt` reverts it.
class AbstractCommand {
public:
    virtual void doIt() = 0;
    virtual void undoIt() = 0;
    virtual ~AbstractCommand();
};

/// A leaf step: what every parameter edit derives from.
class Command : public AbstractCommand {
public:
    void doIt() override = 0;
    void undoIt() override = 0;
    ~Command() override;
};

/// An ordered list of commands that undo works on.
///
/// Owns every command pushed into it and deletes them with itself. Pushing does not run a command: the
/// owner of the composite decides when to `doIt` (all, in push order) and `undoIt` (all, in reverse order).
class CompositeCommand : public Command {
public:
    CompositeCommand();
    CompositeCommand(CompositeCommand const&) = delete;
    CompositeCommand& operator=(CompositeCommand const&) = delete;
    ~CompositeCommand() override;

    /// Appends `command` and takes ownership of it. A null pointer is ignored.
    void push_back(Command* command);
    void doIt() override;
    void undoIt() override;
    std::size_t size() const;
    bool empty() const;
    /// The command at `index` in push order, or null past the end. Ownership stays with the composite.
    Command* at(std::size_t index) const;

private:
    std::vector<std::unique_ptr<Command>> m_commands;
};

} // namespace Bsc
