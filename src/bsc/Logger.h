#pragma once
#include <QString>
#include <functional>
#include <mutex>
#include <string>

namespace Bsc {

/// The process-wide log. Lines arrive exactly as logged: nothing is added (no level, no time, no end of
/// line). By default each line goes to standard error followed by a newline; a host or a test may take the
/// lines instead with `setSink`. Calls are serialised by the logger's own lock.
class Logger {
public:
    using Sink = std::function<void(std::string const&)>;

    /// The one logger, built on first use.
    static Logger& instance();

    void Log(std::string const& line);
    /// Replaces where lines go; an empty function restores the default (standard error).
    void setSink(Sink sink);

private:
    Logger() = default;
    std::recursive_mutex m_mutex; // recursive: a sink may log again
    Sink m_sink;
};

/// One line to the logger: the UTF-8 bytes of `text`, nothing added.
inline void LOG_STRING(QString const& text)
{
    QByteArray const utf8 = text.toUtf8();
    Logger::instance().Log(std::string(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

} // namespace Bsc
