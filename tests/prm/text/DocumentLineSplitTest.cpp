// A whole text cuts its own lines; they must be the lines that a QTextStream on the same text gives.
#include "../Fixtures.h"
#include "prm/set/ParameterSet.h"
#include "prm/text/ParameterTextDocument.h"

using namespace Prm;

namespace {

struct Result {
    int iTaken;
    QVector<int> numbers;
    QStringList texts;
    std::vector<std::string> log;
    double dValue;
};

template <class Read>
Result read(Read readText)
{
    LogCapture capture;
    ParameterSet set("Root", nullptr);
    NumericParameter<double> gain(false, "Gain", 0.0, -1e9, 1e9, InterpolationLinear, ExtrapolationHold);
    set.addParameter(&gain);
    ParameterTextDocument document(set);
    Result result{readText(document), {}, {}, {}, 0.0};
    for (ParameterTextDocument::UnreadLine const& line : document.unreadLines()) {
        result.numbers << line.iLineNumber;
        result.texts << line.qstrText;
    }
    result.log = capture.lines;
    result.dValue = gain.staticValue();
    return result;
}

} // namespace

TEST(DocumentLineSplit, TextAndStreamGiveTheSameLines)
{
    QString const texts[] = {"",
                             "\n",
                             "\r",
                             "\r\n\r\n",
                             "Root.Gain.value=2",
                             "Root.Gain.value=2\n",
                             "Root.Gain.value=2\r\nbad\r\n",
                             "bad\r",
                             "bad\r\r\nRoot.Gain.value=3\r",
                             "x\n\n  \nRoot.Gain.value=4\rbad\n\rRoot.Gain.value=5",
                             "Gain.value=6\n\nRoot.Gain.value=7\r\n\n"};
    for (QString const& text : texts) {
        Result const fromText = read([&text](ParameterTextDocument& document) { return document.iRead(text); });
        Result const fromStream = read([&text](ParameterTextDocument& document) {
            QString copy(text);
            QTextStream in(&copy, QIODevice::ReadOnly);
            return document.iRead(in);
        });
        EXPECT_EQ(fromText.iTaken, fromStream.iTaken) << text.toStdString();
        EXPECT_EQ(fromText.numbers, fromStream.numbers) << text.toStdString();
        EXPECT_EQ(fromText.texts, fromStream.texts) << text.toStdString();
        EXPECT_EQ(fromText.log, fromStream.log) << text.toStdString();
        EXPECT_EQ(fromText.dValue, fromStream.dValue) << text.toStdString();
    }
}
