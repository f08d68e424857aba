#include "camera/FilmTypeFactory.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace {

TQ::FilmType film(char const* name) { return TQ_FilmTypeFactory::byName(name); }

} // namespace

TEST(FilmType, AspectIndexOrderAndTable)
{
    struct {
        char const* name;
        double dRatio;
    } const rows[] = {
#include "data/FilmTypes.inc"
    };
    QStringList expected, actual;
    for (auto const& [name, dRatio] : rows) {
        expected << name;
        EXPECT_TRUE(dRatio == 0 || dRatio == film(name).getFilmBackAspectRatio()) << name;
    }
    for (TQ::FilmType const& row : TQ_FilmTypeFactory::getInstance().get<TQ_FilmTypeFactory::ByAspect>())
        actual << row.name;
    EXPECT_EQ(expected.join('|').toStdString(), actual.join('|').toStdString());

    QList<QString> const names = TQ_FilmTypeFactory::getAllNames();
    ASSERT_TRUE(names.size() == 30 && TQ_FilmTypeFactory::getInstance().size() == 30);
    EXPECT_TRUE(names.first() == "PAL" && names[28] == "70mm IMAX" && names.last() == "Custom");
    EXPECT_TRUE(TQ_FilmTypeFactory::names().Custom == "Custom" && TQ_FilmTypeFactory::names().Flat185 == "Flat 1.85:1");
    EXPECT_EQ(14.939099999999998, film("CS4 D1 NTSC").filmBackHeight);
    EXPECT_EQ(14.754666666666665, film("CS4 DV NTSC").filmBackHeight);
    TQ::FilmType const hd = film("HD");
    EXPECT_TRUE(hd.uiSize(1) == QSize(1280, 720) && hd.uiSize(2) == QSize(640, 480) && hd.uiSize(3) == QSize(0, 0));
    EXPECT_TRUE(film("NTSC Anamorphic").anamorphic);
    EXPECT_TRUE(!film("pal").isValid() && film("pal").name.isNull());
}

TEST(FilmType, ValueOperations)
{
    EXPECT_TRUE(TQ::FilmType(4.0, 3.0).isCustom() && !TQ::FilmType().isCustom() && film("Custom").isCustom());
    EXPECT_FALSE(TQ::FilmType().isValid() || TQ::FilmType(0.0, 3.0).isValid() || TQ::FilmType(4.0, 0.0).isValid());

    TQ::FilmType const pal = film("PAL");
    double const dRatio = 576.0 * (20.12 / 15.09) / 720.0;
    EXPECT_TRUE(pal.pixelAspectRatio(QSize(720, 576)) == dRatio && pal.defPixelAspectRatio() == dRatio);
    EXPECT_EQ(dRatio, pal.pixelAspectRatio(QSize(720, 576), false));
    EXPECT_EQ(288.0 * (20.12 / 15.09) / 720.0 * 2.0, pal.pixelAspectRatio(QSize(720, 288), true));
    EXPECT_TRUE(film("16mm").defPixelAspectRatio() == 0.0 && film("70mm IMAX").defPixelAspectRatio() == 0.0);

    for (auto [name, h, bMatch] : {std::tuple{"PAL", 576, true}, {"PAL", 0, true}, {"PAL", 480, false},
                                   {"16mm", 428, false}})
        EXPECT_EQ(bMatch, filmTypeMatchesHeight(film(name), h)) << name << " " << h;
    for (auto [w, h, bMatch] : {std::tuple{720, 480, true}, {720, 576, false}, {0, 0, true}})
        EXPECT_EQ(bMatch, filmTypeMatchesSize(film("NTSC"), QSize(w, h))) << w << "x" << h;

    for (auto [dPar, w, h, dAspect] : {std::tuple{1.0, 0, 10, 0.0}, {1.0, 10, 0, 0.0}, {2.0, 3, 7, 2.0 * (3.0 / 7.0)}})
        EXPECT_EQ(dAspect, TQ_FilmTypeFactory::requiredFilmAspectFromParAndDims(dPar, QSize(w, h)));
    // A custom type's width is the pixel aspect ratio times the width, halved for fields.
    EXPECT_EQ(75.0, TQ_FilmTypeFactory::customTypeForParAndDims(1.5, QSize(100, 50), true).filmBackWidth);
}

TEST(FilmType, BestMatchForSizeAndPAR)
{
    double const kNaN = std::nan("");
    struct {
        QString query;
        double dPar;
        int w, h;
        bool bDoubled;
        char const* expected;
    } const rows[] = {
#include "data/BestMatch.inc"
    };
    for (auto const& [query, dPar, w, h, bDoubled, expected] : rows) {
        TQ::FilmType const match = query == "size" ? TQ_FilmTypeFactory::bestMatchForSize(QSize(w, h), bDoubled)
                                                   : TQ_FilmTypeFactory::bestMatchForPAR(dPar, QSize(w, h), bDoubled);
        QString const custom = QString("custom %1 x %2").arg(match.filmBackWidth).arg(match.filmBackHeight);
        QString const chosen = match.isCustom()                              ? custom
                               : match.name.isNull() && !match.isValid() ? "none"
                                                                         : match.name;
        EXPECT_EQ(expected, chosen.toStdString()) << query.toStdString() << " " << dPar << " " << w << "x" << h;
    }
}
