#include "camera/FilmType.h"

#include "camera/FilmTypeFactory.h"

namespace TQ {

FilmType::FilmType()
    : filmBackWidth(0.0), filmBackHeight(0.0), filmWidth{0, 0, 0}, filmHeight{0, 0, 0}, anamorphic(false)
{
}

FilmType::FilmType(QString const& name_, double filmBackWidth_, double filmBackHeight_, int width1, int width2,
                   int width3, int height1, int height2, int height3, bool anamorphic_)
    : name(name_), filmBackWidth(filmBackWidth_), filmBackHeight(filmBackHeight_),
      filmWidth{width1, width2, width3}, filmHeight{height1, height2, height3}, anamorphic(anamorphic_)
{
}

FilmType::FilmType(double filmBackWidth_, double filmBackHeight_)
    : FilmType(TQ_FilmTypeFactory::names().Custom, filmBackWidth_, filmBackHeight_, 0, 0, 0, 0, 0, 0, false)
{
}

double FilmType::getFilmBackAspectRatio() const
{
    return filmBackWidth / filmBackHeight;
}

double FilmType::pixelAspectRatio(QSize const& size) const
{
    return double(size.height()) * (filmBackWidth / filmBackHeight) / double(size.width());
}

double FilmType::pixelAspectRatio(QSize const& size, bool doubled) const
{
    double const dRatio = pixelAspectRatio(size);
    return doubled ? dRatio + dRatio : dRatio;
}

double FilmType::defPixelAspectRatio() const
{
    if (filmWidth[0] == 0 || filmHeight[0] == 0)
        return 0.0;
    return double(filmHeight[0]) * (filmBackWidth / filmBackHeight) / double(filmWidth[0]);
}

bool FilmType::isValid() const
{
    return filmBackWidth != 0.0 && filmBackHeight != 0.0;
}

QSize FilmType::uiSize(unsigned long index) const
{
    if (index > 2)
        return QSize(0, 0);
    return QSize(filmWidth[index], filmHeight[index]);
}

bool FilmType::isCustom() const
{
    return name == TQ_FilmTypeFactory::names().Custom;
}

} // namespace TQ

bool filmTypeMatchesHeight(TQ::FilmType const& film, unsigned int height)
{
    for (int iHeight : film.filmHeight) {
        if (unsigned(iHeight) == height)
            return true;
    }
    return false;
}

bool filmTypeMatchesSize(TQ::FilmType const& film, QSize const& size)
{
    for (int i = 0; i < 3; ++i) {
        if (film.filmWidth[i] == size.width() && film.filmHeight[i] == size.height())
            return true;
    }
    return false;
}
