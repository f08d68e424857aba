#include "support/XMLErrorHandler.h"

#include <ostream>

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

TQ_XMLErrorHandler::TQ_XMLErrorHandler(std::ostream& errorStream) : errorStream(&errorStream) {}

TQ_XMLErrorHandler::~TQ_XMLErrorHandler() = default;

bool TQ_XMLErrorHandler::warning(QXmlParseException const& exception)
{
    vRecord("Warning: ", exception);
    return true;
}

bool TQ_XMLErrorHandler::error(QXmlParseException const& exception)
{
    vRecord("Error: ", exception);
    return false;
}

bool TQ_XMLErrorHandler::fatalError(QXmlParseException const& exception)
{
    vRecord("Fatal Error: ", exception);
    return false;
}

QString TQ_XMLErrorHandler::errorString() const
{
    return lastError;
}

// Line and column of the complaint are deliberately left out of the printed text.
void TQ_XMLErrorHandler::vRecord(char const* prefix, QXmlParseException const& exception)
{
    lastError = exception.message();
    QByteArray const utf8 = lastError.toUtf8();
    *errorStream << prefix;
    errorStream->write(utf8.constData(), utf8.size());
    *errorStream << "\n";
}

QT_WARNING_POP
