#pragma once

#include "camera/FilmType.h"

#include <QList>
#include <QSize>
#include <QString>
#include <QVector>

#include <boost/multi_index/mem_fun.hpp>
#include <boost/multi_index/member.hpp>
#include <boost/multi_index/ordered_index.hpp>
#include <boost/multi_index/sequenced_index.hpp>
#include <boost/multi_index_container.hpp>

#include <utility>

/// The fixed table of thirty named film formats, and lookups over it. Only static members; the table and
/// its container are built on first use, are read-only from then on and live until the library unloads,
/// so references to them stay valid. No operation throws or logs: a failed lookup gives `TQ::FilmType()`
/// or, where stated, a custom film type.
class TQ_FilmTypeFactory
{
public:
    /// The thirty format names: "Custom" first, then the table rows in order.
    struct Names
    {
        QString Custom;
        QString PAL;
        QString PALAnamorphic;
        QString NTSC;
        QString NTSCAnamorphic;
        QString CS4PAL;
        QString CS4PALAnamorphic;
        QString CS4D1NTSC;
        QString CS4DVNTSC;
        QString CS4D1NTSCAnamorphic;
        QString CS4DVNTSCAnamorphic;
        QString DVCPROHD720;
        QString DVCPROHD1080;
        QString HDV;
        QString HD;
        QString Film16mm;
        QString Super16mm;
        QString Film35mmFullAperture;
        QString ScopeSuper35;
        QString Super35ThreePerfA;
        QString Super35ThreePerfB;
        QString Film35mmVistaVision;
        QString Film35mmAcademy;
        QString CinemascopePanavision;
        QString Flat185;
        QString Film65mmFivePerf;
        QString Film65mmEightPerf;
        QString Film65mmTenPerf;
        QString Film65mmFifteenPerf;
        QString IMAX70mm;
    };

    struct ByName {};
    struct InTableOrder {};
    struct ByAspect {};

    /// Unique by name (case-sensitive), table order, and by film back aspect ratio. Among equal aspect
    /// ratios the third index keeps the order that decides ties in bestMatchForPAR.
    typedef boost::multi_index_container<
        TQ::FilmType,
        boost::multi_index::indexed_by<
            boost::multi_index::ordered_unique<
                boost::multi_index::tag<ByName>,
                boost::multi_index::member<TQ::FilmType, QString, &TQ::FilmType::name>>,
            boost::multi_index::sequenced<boost::multi_index::tag<InTableOrder>>,
            boost::multi_index::ordered_non_unique<
                boost::multi_index::tag<ByAspect>,
                boost::multi_index::const_mem_fun<TQ::FilmType, double,
                                                  &TQ::FilmType::getFilmBackAspectRatio>>>>
        Container;
    typedef Container::index<ByAspect>::type AspectIndex;
    typedef std::pair<AspectIndex::const_iterator, AspectIndex::const_iterator> AspectRange;

    /// The one set of names.
    static Names const& names();
    /// The one container of the thirty rows.
    static Container const& getInstance();
    /// All thirty names in table order, "Custom" last.
    static QList<QString> getAllNames();
    /// A copy of the row of exactly that name, or the invalid value.
    static TQ::FilmType byName(QString const& name);
    /// The first row having exactly `size`, else the first row having its height, else the invalid value.
    /// With `doubled`, `size` holds one field and the frame is twice its height.
    static TQ::FilmType bestMatchForSize(QSize const& size, bool doubled);
    /// The row that gives pixel aspect ratio `par` at `size` (see the source for the ranking), else a custom
    /// type of that ratio; the invalid value for a `par` not above 0 or an empty size.
    static TQ::FilmType bestMatchForPAR(double par, QSize const& size, bool doubled);
    /// par * (width / height); 0.0 when the width or the height is below 1.
    static double requiredFilmAspectFromParAndDims(double par, QSize const& size);
    /// A custom film back of `par` * width (halved when `doubled`) by height; the invalid value for a `par`
    /// not above 0 or an empty size.
    static TQ::FilmType customTypeForParAndDims(double par, QSize const& size, bool doubled);

private:
    static QVector<TQ::FilmType> const& rows();
    static QVector<TQ::FilmType> _bestMatchesForFullSize(QVector<TQ::FilmType> const& candidates,
                                                         QSize const& size);
    static AspectRange _bestFBMatchesFromParAndFullSize(double par, QSize const& size);
};
