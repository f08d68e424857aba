#include "bsc/Command.h"

namespace Bsc {

AbstractCommand::~AbstractCommand() = default;
Command::~Command() = default;

CompositeCommand::CompositeCommand() = default;
CompositeCommand::~CompositeCommand() = default;

void CompositeCommand::push_back(Command* command)
{
    if (command)
        m_commands.emplace_back(command);
}

void CompositeCommand::doIt()
{
    for (auto& command : m_commands)
        command->doIt();
}

void CompositeCommand::undoIt()
{
    for (auto it = m_commands.rbegin(); it != m_commands.rend(); ++it)
        (*it)->undoIt();
}

std::size_t CompositeCommand::size() const
{
    return m_commands.size();
}

bool CompositeCommand::empty() const
{
    return m_commands.empty();
}

Command* CompositeCommand::at(std::size_t index) const
{
    return index < m_commands.size() ? m_commands[index].get() : nullptr;
}

} // namespace Bsc
