#pragma once
/// Turns the complaints of Qt's SAX parser into text: each is printed to a stream and the latest is kept.

#include <QString>
#include <QtGlobal>
#include <iosfwd>

// The SAX classes are deprecated in Qt 5.15 but are the interface this handler plugs into.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
#include <QXmlErrorHandler>

class TQ_XMLErrorHandler : public QXmlErrorHandler {
public:
    /// Complaints are printed to `errorStream`, which is not owned and must outlive the handler.
    explicit TQ_XMLErrorHandler(std::ostream& errorStream);
    ~TQ_XMLErrorHandler() override;

    /// Prints "Warning: <message>"; true, so parsing goes on.
    bool warning(QXmlParseException const& exception) override;
    /// Prints "Error: <message>"; false, so parsing stops.
    bool error(QXmlParseException const& exception) override;
    /// Prints "Fatal Error: <message>"; false, so parsing stops.
    bool fatalError(QXmlParseException const& exception) override;
    /// The latest complaint's message (earlier ones are not kept); empty before the first.
    QString errorString() const override;

private:
    void vRecord(char const* prefix, QXmlParseException const& exception);

    QString lastError;
    std::ostream* errorStream;
};

QT_WARNING_POP
