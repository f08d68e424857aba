#pragma once
#include "gandalf/CameraType.h"

#include <QMap>
#include <QString>
#include <QStringList>

namespace TQ {

/// A lens distortion model that the application offers, tied to the Gandalf model that computes it.
///
/// A plain value. The six named models are built on first use and live until unload; their names are
/// translated (context "CameraType") once, when built. The table of offered models is filled once, on
/// first use, and read-only after that: the distortion map model is in it only when the licence offers
/// the feature "DistortionMap" at that moment (Bsc::Licence). Unknown ids and Gandalf models are reported
/// on Qt's critical message stream and read as LINEAR(); nothing throws.
class CameraType {
public:
    /// The value a QMap gives for a missing key: id -1, no name, the linear Gandalf model.
    CameraType();
    CameraType(int id, QString name, Gan_CameraType ganType);

    /// Stable across versions: persisted by the application and the key of s_allTypes().
    int id;
    /// Translated display name.
    QString name;
    Gan_CameraType ganType;

    static CameraType const& LINEAR();
    static CameraType const& ONE_PARAMETER();
    static CameraType const& TWO_PARAMETER();
    /// Id 3, Gandalf model 4: from here on ids and Gandalf models differ.
    static CameraType const& ONE_PARAMETER_INV();
    static CameraType const& ANAMORPHIC();
    static CameraType const& DISTORTION_MAP();

    /// The offered models by id.
    static QMap<int, CameraType> const& s_allTypes();
    /// The offered model `id`; LINEAR() and a critical message when none has it.
    static CameraType const& fromId(int id);
    /// The offered model of lowest id that uses `ganType`; LINEAR() and a critical message when none does.
    static CameraType const& fromGandalf(Gan_CameraType ganType);
    /// Names of the offered models, in ascending id.
    static QStringList ALL_NAMES();
};

} // namespace TQ
