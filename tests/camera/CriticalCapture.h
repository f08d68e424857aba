#pragma once
#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Collects the messages sent to Qt's critical stream while alive; other messages go on as before.
class CriticalCapture {
public:
    CriticalCapture() : previous(qInstallMessageHandler(&handle)) { lines().clear(); }
    ~CriticalCapture() { qInstallMessageHandler(previous); }
    QStringList const& messages() const { return lines(); }

private:
    static QStringList& lines()
    {
        static QStringList captured;
        return captured;
    }
    static void handle(QtMsgType type, QMessageLogContext const&, QString const& message)
    {
        if (type == QtCriticalMsg)
            lines() << message;
    }
    QtMessageHandler previous;
};
