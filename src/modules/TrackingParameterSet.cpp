#include "modules/TrackingParameterSet.h"

#include <QCoreApplication>

TQ_TrackingParameterSet::TQ_TrackingParameterSet() : TQ::ClipBoundParameterSet(QStringLiteral("Track"))
{
    init();
}

TQ_TrackingParameterSet::TQ_TrackingParameterSet(TQ_TrackingParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Track")), TQ::Table::TrackingParameters(other)
{
    init();
}

TQ_TrackingParameterSet& TQ_TrackingParameterSet::operator=(TQ_TrackingParameterSet const& other)
{
    bAssignSet<TQ::Table::TrackingParameters>(other, {&Render});
    return *this;
}

TQ_TrackingParameterSet::~TQ_TrackingParameterSet() = default;

void TQ_TrackingParameterSet::init()
{
    vAddParameters({&InputClipID, &AutoMaxMotionX, &AutoMaxMotionY, &SmoothingLevel, &MinPercentagePixelUsage,
                    &ApplySearch, &ManualTrack, &MaxRotationAngle, &MaxZoomPercentage, &MaxMotionX, &MaxMotionY,
                    &PredictMaxMotionX, &PredictMaxMotionY, &TrackingModel, &UseActiveColorChannel, &TranslationX,
                    &TranslationY, &Rotation, &Scale, &ShearX, &ShearY, &PerspectiveX, &PerspectiveY});
    vListMovedParameters({&Render});
    forEachParameter([](Prm::ParameterWithoutType* parameter) { parameter->hide(true); }, false);

    struct Shown {
        Prm::ParameterWithoutType* parameter;
        char const* displayName;
    };
    for (Shown const& shown : {Shown{&MinPercentagePixelUsage, QT_TRANSLATE_NOOP("Parameter", "Min % Pixels Used")},
                               Shown{&MaxRotationAngle, QT_TRANSLATE_NOOP("Parameter", "Max Rotation Angle")},
                               Shown{&MaxZoomPercentage, QT_TRANSLATE_NOOP("Parameter", "Max Zoom %")},
                               Shown{&MaxMotionX, QT_TRANSLATE_NOOP("Parameter", "Max Motion X")},
                               Shown{&MaxMotionY, QT_TRANSLATE_NOOP("Parameter", "Max Motion Y")},
                               Shown{&SmoothingLevel, QT_TRANSLATE_NOOP("Parameter", "Smoothing Level")}}) {
        shown.parameter->setDisplayName(QCoreApplication::translate("Parameter", shown.displayName));
        shown.parameter->hide(false);
    }
    vHide({&TranslationX, &TranslationY, &Rotation, &Scale, &ShearX, &ShearY, &PerspectiveX, &PerspectiveY}, false);
}

void TQ_TrackingParameterSet::rescale(float factor, float)
{
    double const wide = factor;
    MaxMotionX *= wide;
    MaxMotionY *= wide;
    AutoMaxMotionX *= wide;
    AutoMaxMotionY *= wide;
}

void TQ_TrackingParameterSet::removeReferencesToClip(unsigned int clipId)
{
    forgetClip(InputClipID, clipId);
}
