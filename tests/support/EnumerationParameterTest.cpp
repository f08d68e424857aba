#include "bsc/Command.h"
#include "support/EnumerationParameters.h"

#include <gtest/gtest.h>

#include <QTextStream>

// The parameters over this folder's enumerations: text as decimal numbers and undo. (Variants are left
// alone here: the metatypes must still be unregistered when EnumerationTest looks at them.)
TEST(EnumerationParameter, KeyedAndStaticParametersOverEnumerations)
{
    Prm::Parameter<TQ_BlendMode> mode(true, "Mode", TQ_BLEND_MODE_DEFAULT, Prm::InterpolationStep,
                                      Prm::ExtrapolationHold);
    EXPECT_TRUE(mode.streamInValue("keyframes.append( Key( 2, 3, Step ) )", {}));
    EXPECT_EQ(mode.keyframeSuffixString(2.0f), "keyframes.append( Key( 2, 3, Step ) )");
    Bsc::CompositeCommand composite;
    mode.vSetValueCommand(TQ_BlendMode(4), 2.0f, composite);
    composite.doIt();
    EXPECT_EQ(mode.value(2.0f, nullptr), TQ_BlendMode(4));
    composite.undoIt();
    EXPECT_EQ(mode.value(2.0f, nullptr), TQ_BlendMode(3));

    _TQ_CLIP_MODE clipMode = TQ_CLIP_MODE_PING_PONG;
    Prm::VirtualParameter<_TQ_CLIP_MODE> clip("Mode", &clipMode);
    QString text;
    QTextStream out(&text);
    EXPECT_TRUE(clip.bStreamOut(out, QString(), true));
    out.flush();
    EXPECT_EQ(text, "Mode.value=3\n");
    EXPECT_TRUE(clip.bStreamIn("value=1"));
    EXPECT_EQ(clipMode, TQ_CLIP_MODE_REPEAT);
}
