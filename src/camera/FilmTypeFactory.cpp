#include "camera/FilmTypeFactory.h"

#include "bsc/IsNear.h"

#include <cmath>

namespace {

TQ_FilmTypeFactory::Names makeNames()
{
    TQ_FilmTypeFactory::Names n;
    n.Custom = "Custom";
    n.PAL = "PAL";
    n.PALAnamorphic = "PAL Anamorphic";
    n.NTSC = "NTSC";
    n.NTSCAnamorphic = "NTSC Anamorphic";
    n.CS4PAL = "CS4 PAL";
    n.CS4PALAnamorphic = "CS4 PAL Anamorphic";
    n.CS4D1NTSC = "CS4 D1 NTSC";
    n.CS4DVNTSC = "CS4 DV NTSC";
    n.CS4D1NTSCAnamorphic = "CS4 D1 NTSC Anamorphic";
    n.CS4DVNTSCAnamorphic = "CS4 DV NTSC Anamorphic";
    n.DVCPROHD720 = "DVCPRO HD 720";
    n.DVCPROHD1080 = "DVCPRO HD 1080";
    n.HDV = "HDV";
    n.HD = "HD";
    n.Film16mm = "16mm";
    n.Super16mm = "Super 16mm";
    n.Film35mmFullAperture = "35mm Full Aperture";
    n.ScopeSuper35 = "Scope Super 35";
    n.Super35ThreePerfA = "Super 35 (3 Perf) A";
    n.Super35ThreePerfB = "Super 35 (3 Perf) B";
    n.Film35mmVistaVision = "35mm VistaVision";
    n.Film35mmAcademy = "35mm Academy";
    n.CinemascopePanavision = "Cinemascope/Panavision";
    n.Flat185 = "Flat 1.85:1";
    n.Film65mmFivePerf = "65mm (5 Perf)";
    n.Film65mmEightPerf = "65mm (8 Perf)";
    n.Film65mmTenPerf = "65mm (10 Perf)";
    n.Film65mmFifteenPerf = "65mm (15 Perf)";
    n.IMAX70mm = "70mm IMAX";
    return n;
}

QVector<TQ::FilmType> makeRows()
{
    using TQ::FilmType;
    TQ_FilmTypeFactory::Names const& n = TQ_FilmTypeFactory::names();
    return {
        FilmType(n.PAL, 20.12, 15.09, 720, 0, 0, 576, 0, 0, false),
        FilmType(n.PALAnamorphic, 20.12, 11.318, 720, 0, 0, 576, 0, 0, true),
        FilmType(n.NTSC, 20.12, 15.09, 720, 720, 0, 486, 480, 0, false),
        FilmType(n.NTSCAnamorphic, 20.12, 11.318, 720, 720, 0, 486, 480, 0, true),
        FilmType(n.CS4PAL, 20.12, 14.71275, 720, 0, 0, 576, 0, 0, false),
        FilmType(n.CS4PALAnamorphic, 20.12, 11.0345625, 720, 0, 0, 576, 0, 0, true),
        FilmType(n.CS4D1NTSC, 20.12, 14.939099999999998, 720, 0, 0, 486, 0, 0, false),
        FilmType(n.CS4DVNTSC, 20.12, 14.754666666666665, 720, 0, 0, 480, 0, 0, false),
        FilmType(n.CS4D1NTSCAnamorphic, 20.12, 11.204325, 720, 0, 0, 486, 0, 0, true),
        FilmType(n.CS4DVNTSCAnamorphic, 20.12, 11.066, 720, 0, 0, 480, 0, 0, true),
        FilmType(n.DVCPROHD720, 16.0, 9.0, 960, 0, 0, 720, 0, 0, false),
        FilmType(n.DVCPROHD1080, 16.0, 9.0, 1280, 0, 0, 1080, 0, 0, false),
        FilmType(n.HDV, 16.0, 9.0, 1440, 0, 0, 1080, 0, 0, false),
        FilmType(n.HD, 16.0, 9.0, 1920, 1280, 640, 1080, 720, 480, false),
        FilmType(n.Film16mm, 10.26, 7.49, 428, 856, 1712, 0, 0, 0, false),
        FilmType(n.Super16mm, 12.52, 7.42, 512, 1024, 2048, 0, 0, 0, false),
        FilmType(n.Film35mmFullAperture, 24.892, 18.669, 1024, 2048, 4096, 778, 1556, 3112, false),
        FilmType(n.ScopeSuper35, 24.9, 13.9, 1024, 2048, 4096, 436, 872, 1744, false),
        FilmType(n.Super35ThreePerfA, 24.9, 13.9, 1024, 2048, 4096, 578, 1156, 2312, false),
        FilmType(n.Super35ThreePerfB, 24.9, 13.9, 1024, 2048, 4096, 580, 1160, 2320, false),
        FilmType(n.Film35mmVistaVision, 37.719, 25.146, 1532, 3072, 6144, 1024, 2048, 4096, false),
        FilmType(n.Film35mmAcademy, 21.946, 16.002, 914, 1828, 3656, 666, 1332, 2664, false),
        FilmType(n.CinemascopePanavision, 43.893, 18.593, 914, 1828, 3656, 778, 1556, 3112, false),
        FilmType(n.Flat185, 43.893, 23.723, 914, 1828, 3656, 494, 988, 1976, false),
        FilmType(n.Film65mmFivePerf, 52.476, 23.012, 1024, 2048, 4096, 0, 0, 0, false),
        FilmType(n.Film65mmEightPerf, 52.629, 37.719, 1024, 2048, 4096, 0, 0, 0, false),
        FilmType(n.Film65mmTenPerf, 70.409, 52.629, 1024, 2048, 4096, 0, 0, 0, false),
        FilmType(n.Film65mmFifteenPerf, 70.409, 52.629, 1024, 2048, 4096, 0, 0, 0, false),
        FilmType(n.IMAX70mm, 70.39, 52.62, 0, 0, 0, 0, 0, 0, false),
        FilmType(n.Custom, 10.0, 10.0, 0, 0, 0, 0, 0, 0, false),
    };
}

} // namespace

TQ_FilmTypeFactory::Names const& TQ_FilmTypeFactory::names()
{
    static Names const s_names = makeNames();
    return s_names;
}

QVector<TQ::FilmType> const& TQ_FilmTypeFactory::rows()
{
    static QVector<TQ::FilmType> const s_rows = makeRows();
    return s_rows;
}

namespace {

// Each row goes in with the previously inserted row as the hint. The order this leaves among equal aspect
// ratios (runs of neighbouring rows come out reversed) decides ties in bestMatchForPAR, so it must not
// depend on how a Boost version's range constructor happens to place its hints.
TQ_FilmTypeFactory::Container makeContainer(QVector<TQ::FilmType> const& rows)
{
    TQ_FilmTypeFactory::Container container;
    TQ_FilmTypeFactory::Container::iterator hint = container.end();
    for (TQ::FilmType const& film : rows)
        hint = container.insert(hint, film);
    return container;
}

} // namespace

TQ_FilmTypeFactory::Container const& TQ_FilmTypeFactory::getInstance()
{
    static Container const s_container = makeContainer(rows());
    return s_container;
}

QList<QString> TQ_FilmTypeFactory::getAllNames()
{
    QList<QString> names;
    for (TQ::FilmType const& film : getInstance().get<InTableOrder>())
        names.append(film.name);
    return names;
}

TQ::FilmType TQ_FilmTypeFactory::byName(QString const& name)
{
    Container::index<ByName>::type const& index = getInstance().get<ByName>();
    Container::index<ByName>::type::const_iterator const it = index.find(name);
    return it == index.end() ? TQ::FilmType() : *it;
}

TQ::FilmType TQ_FilmTypeFactory::bestMatchForSize(QSize const& size, bool doubled)
{
    unsigned const uiWidth = unsigned(size.width());
    unsigned const uiHeight = doubled ? unsigned(size.height()) << 1 : unsigned(size.height());
    TQ::FilmType const* pFirstCandidate = nullptr;
    for (TQ::FilmType const& film : getInstance().get<InTableOrder>()) {
        if (!filmTypeMatchesHeight(film, uiHeight))
            continue;
        if (!pFirstCandidate)
            pFirstCandidate = &film;
        for (int i = 0; i < 3; ++i) {
            if (unsigned(film.filmWidth[i]) == uiWidth && unsigned(film.filmHeight[i]) == uiHeight)
                return film;
        }
    }
    return pFirstCandidate ? *pFirstCandidate : TQ::FilmType();
}

double TQ_FilmTypeFactory::requiredFilmAspectFromParAndDims(double par, QSize const& size)
{
    if (size.width() < 1 || size.height() < 1)
        return 0.0;
    return par * (double(size.width()) / double(size.height()));
}

TQ::FilmType TQ_FilmTypeFactory::customTypeForParAndDims(double par, QSize const& size, bool doubled)
{
    if (!(par > 0.0) || size.width() < 1 || size.height() < 1)
        return TQ::FilmType();
    double dWidth = par * double(size.width());
    if (doubled)
        dWidth *= 0.5;
    return TQ::FilmType(dWidth, double(size.height()));
}

TQ_FilmTypeFactory::AspectRange TQ_FilmTypeFactory::_bestFBMatchesFromParAndFullSize(double par,
                                                                                    QSize const& size)
{
    AspectIndex const& index = getInstance().get<ByAspect>();
    if (!(par > 0.0))
        return AspectRange(index.end(), index.end());
    double const dQuantised = std::floor(par * 1000.0 + 0.5) * 0.001;
    double const dAspect = size.height() > 0 ? double(size.width()) / double(size.height()) : 0.0;
    double const dTolerance = 0.001 * dAspect;
    double const dLower = requiredFilmAspectFromParAndDims(dQuantised - dTolerance, size);
    double const dUpper = requiredFilmAspectFromParAndDims(dQuantised + dTolerance, size);
    return AspectRange(index.lower_bound(dLower), index.upper_bound(dUpper));
}

QVector<TQ::FilmType> TQ_FilmTypeFactory::_bestMatchesForFullSize(QVector<TQ::FilmType> const& candidates,
                                                                  QSize const& size)
{
    QVector<TQ::FilmType> exact;
    QVector<TQ::FilmType> sameHeight;
    if (size.height() <= 0)
        return exact;
    for (TQ::FilmType const& film : candidates) {
        if (filmTypeMatchesSize(film, size)) {
            exact.append(film);
            sameHeight.clear();
        }
        if (exact.isEmpty() && filmTypeMatchesHeight(film, unsigned(size.height())))
            sameHeight.append(film);
    }
    return exact.isEmpty() ? sameHeight : exact;
}

TQ::FilmType TQ_FilmTypeFactory::bestMatchForPAR(double par, QSize const& size, bool doubled)
{
    if (!(par > 0.0) || size.width() <= 0 || size.height() <= 0)
        return TQ::FilmType();
    QSize const fullSize(size.width(), doubled ? int(unsigned(size.height()) << 1) : size.height());
    AspectRange const range = _bestFBMatchesFromParAndFullSize(par, fullSize);
    if (range.first == range.second)
        return customTypeForParAndDims(par, size, doubled);

    // Pixel aspect within tolerance first, then exact size over height alone, then aspect index order.
    QVector<TQ::FilmType> candidates;
    for (AspectIndex::const_iterator it = range.first; it != range.second; ++it) {
        if (Bsc::isNear(float(it->pixelAspectRatio(fullSize)), float(par), float(0.001)))
            candidates.append(*it);
    }
    candidates = _bestMatchesForFullSize(candidates, fullSize);
    return candidates.isEmpty() ? customTypeForParAndDims(par, size, doubled) : candidates.first();
}
