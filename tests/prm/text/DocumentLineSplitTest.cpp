// A whole text cuts its own lines; they must be the lines that a QTextStream on the same text gives.
#include "../Fixtures.h"
#include "prm/set/ParameterSet.h"
#include "prm/text/ParameterTextDocument.h"

using namespace Prm;

namespace {

/// What one read leaves: the lines taken, each unread line as number:text, the log, and the parameter's state.
template <class Read>
std::string read(Read readText)
{
    LogCapture capture;
    ParameterSet set("Root", nullptr);
    Curve gain(false, "Gain", 0.0, -1e9, 1e9, InterpolationLinear, ExtrapolationHold);
    set.addParameter(&gain);
    ParameterTextDocument document(set);
    std::string result = std::to_string(readText(document)) + " |";
    for (ParameterTextDocument::UnreadLine const& line : document.unreadLines())
        result += ' ' + std::to_string(line.iLineNumber) + ':' + line.qstrText.toStdString();
    for (std::string const& line : capture.lines)
        result += " | " + line;
    return result + " | " + state(gain);
}

} // namespace

TEST(DocumentLineSplit, TextAndStreamGiveTheSameLines)
{
    for (QString const text : {"", "\n", "\r", "\r\n\r\n", "Root.Gain.value=2", "Root.Gain.value=2\n",
                               "Root.Gain.value=2\r\nbad\r\n", "bad\r", "bad\r\r\nRoot.Gain.value=3\r",
                               "x\n\n  \nRoot.Gain.value=4\rbad\n\rRoot.Gain.value=5",
                               "Gain.value=6\n\nRoot.Gain.value=7\r\n\n"}) {
        EXPECT_EQ(read([&text](ParameterTextDocument& document) { return document.iRead(text); }),
                  read([&text](ParameterTextDocument& document) {
                      QString copy(text);
                      QTextStream in(&copy, QIODevice::ReadOnly);
                      return document.iRead(in);
                  })) << text.toStdString();
    }
}
