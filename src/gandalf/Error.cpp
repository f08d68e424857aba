#include "gandalf/Error.h"

#include <string>
#include <vector>

namespace {

struct ErrorEntry {
    std::string funcName;
    int code;
    std::string fileName;
    int line;
    std::string message;
    int number;
};

std::vector<ErrorEntry>& trace()
{
    thread_local std::vector<ErrorEntry> entries;
    return entries;
}

std::string text(char const* s)
{
    return s ? std::string(s) : std::string();
}

} // namespace

extern "C" {

void gan_err_flush_trace(void)
{
    trace().clear();
}

void gan_err_register_fileline(char const* funcName, int code, char const* fileName, int line,
                               char const* message, int number)
{
    trace().push_back({text(funcName), code, text(fileName), line, text(message), number});
}

int gan_err_get_error_count(void)
{
    return static_cast<int>(trace().size());
}

int gan_err_get_error(int n, char const** funcName, int* code, char const** fileName, int* line,
                      char const** message, int* number)
{
    auto const& entries = trace();
    if (n < 0 || static_cast<size_t>(n) >= entries.size())
        return 0;
    ErrorEntry const& e = entries[static_cast<size_t>(n)];
    if (funcName) *funcName = e.funcName.c_str();
    if (code) *code = e.code;
    if (fileName) *fileName = e.fileName.c_str();
    if (line) *line = e.line;
    if (message) *message = e.message.c_str();
    if (number) *number = e.number;
    return 1;
}

} // extern "C"
