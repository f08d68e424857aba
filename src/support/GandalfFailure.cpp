#include "support/GandalfFailure.h"

#include "gandalf/Error.h"

bool bGandalfFailure(char const* functionName, int code, char const* fileName, int line, char const* message,
                     int number)
{
    gan_err_flush_trace();
    gan_err_register_fileline(functionName, code, fileName, line, message, number);
    return false;
}
