#include "bsc/Logger.h"

#include <cstdio>

namespace Bsc {

Logger& Logger::instance()
{
    static Logger logger;
    return logger;
}

void Logger::Log(std::string const& line)
{
    std::lock_guard<std::recursive_mutex> lock(m_mutex);
    if (m_sink) {
        m_sink(line);
        return;
    }
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fputc('\n', stderr);
}

void Logger::setSink(Sink sink)
{
    std::lock_guard<std::recursive_mutex> lock(m_mutex);
    m_sink = std::move(sink);
}

} // namespace Bsc
