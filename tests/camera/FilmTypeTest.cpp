#include "camera/FilmTypeFactory.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

namespace {

TQ::FilmType const& row(QString const& name)
{
    TQ_FilmTypeFactory::Container::index<TQ_FilmTypeFactory::ByName>::type const& index =
        TQ_FilmTypeFactory::getInstance().get<TQ_FilmTypeFactory::ByName>();
    return *index.find(name);
}

} // namespace

TEST(FilmType, AspectIndexOrderIsTabled)
{
    QStringList const expected = {
        "Custom", "35mm Full Aperture", "PAL", "NTSC", "70mm IMAX", "65mm (15 Perf)", "65mm (10 Perf)",
        "CS4 D1 NTSC", "CS4 DV NTSC", "CS4 PAL", "16mm", "35mm Academy", "65mm (8 Perf)", "35mm VistaVision",
        "Super 16mm", "NTSC Anamorphic", "PAL Anamorphic", "HD", "HDV", "DVCPRO HD 1080", "DVCPRO HD 720",
        "Super 35 (3 Perf) B", "Super 35 (3 Perf) A", "Scope Super 35", "CS4 D1 NTSC Anamorphic",
        "CS4 DV NTSC Anamorphic", "CS4 PAL Anamorphic", "Flat 1.85:1", "65mm (5 Perf)", "Cinemascope/Panavision"};
    QStringList actual;
    for (TQ::FilmType const& film : TQ_FilmTypeFactory::getInstance().get<TQ_FilmTypeFactory::ByAspect>())
        actual << film.name;
    EXPECT_EQ(expected.join('|').toStdString(), actual.join('|').toStdString());

    // Equal ratios must be bit-for-bit equal, neighbours bit-for-bit different.
    EXPECT_EQ(1.3333333333333333, row("35mm Full Aperture").getFilmBackAspectRatio());
    EXPECT_EQ(1.3333333333333335, row("NTSC").getFilmBackAspectRatio());
    EXPECT_EQ(1.3377042949448879, row("70mm IMAX").getFilmBackAspectRatio());
    EXPECT_EQ(1.7776992401484362, row("PAL Anamorphic").getFilmBackAspectRatio());
    EXPECT_EQ(1.7777777777777777, row("DVCPRO HD 720").getFilmBackAspectRatio());
    EXPECT_EQ(2.3607271553810576, row("Cinemascope/Panavision").getFilmBackAspectRatio());
}

TEST(FilmType, TableAndNames)
{
    QList<QString> const names = TQ_FilmTypeFactory::getAllNames();
    ASSERT_EQ(30, names.size());
    EXPECT_EQ("PAL", names.first());
    EXPECT_EQ("70mm IMAX", names[28]);
    EXPECT_EQ("Custom", names.last());
    EXPECT_EQ(30u, TQ_FilmTypeFactory::getInstance().size());

    EXPECT_EQ("Custom", TQ_FilmTypeFactory::names().Custom);
    EXPECT_EQ("Flat 1.85:1", TQ_FilmTypeFactory::names().Flat185);

    TQ::FilmType const film = TQ_FilmTypeFactory::byName("CS4 D1 NTSC");
    EXPECT_EQ(14.939099999999998, film.filmBackHeight);
    EXPECT_EQ(14.754666666666665, TQ_FilmTypeFactory::byName("CS4 DV NTSC").filmBackHeight);
    TQ::FilmType const hd = TQ_FilmTypeFactory::byName("HD");
    EXPECT_EQ(QSize(1280, 720), hd.uiSize(1));
    EXPECT_EQ(QSize(640, 480), hd.uiSize(2));
    EXPECT_EQ(QSize(0, 0), hd.uiSize(3));
    EXPECT_TRUE(TQ_FilmTypeFactory::byName("NTSC Anamorphic").anamorphic);
    EXPECT_FALSE(TQ_FilmTypeFactory::byName("pal").isValid());
    EXPECT_TRUE(TQ_FilmTypeFactory::byName("pal").name.isNull());
}

TEST(FilmType, ValueOperations)
{
    TQ::FilmType const invalid;
    EXPECT_FALSE(invalid.isValid());
    EXPECT_FALSE(invalid.isCustom());
    EXPECT_TRUE(invalid.name.isNull());

    TQ::FilmType const custom(4.0, 3.0);
    EXPECT_TRUE(custom.isCustom());
    EXPECT_TRUE(custom.isValid());
    EXPECT_EQ(QSize(0, 0), custom.uiSize(0));
    EXPECT_TRUE(TQ_FilmTypeFactory::byName("Custom").isCustom());
    EXPECT_TRUE(TQ_FilmTypeFactory::byName("Custom").isValid());
    EXPECT_FALSE(TQ::FilmType(0.0, 3.0).isValid());
    EXPECT_FALSE(TQ::FilmType(4.0, 0.0).isValid());

    TQ::FilmType const pal = TQ_FilmTypeFactory::byName("PAL");
    double const dRatio = 576.0 * (20.12 / 15.09) / 720.0;
    EXPECT_EQ(dRatio, pal.pixelAspectRatio(QSize(720, 576)));
    EXPECT_EQ(dRatio, pal.defPixelAspectRatio());
    EXPECT_EQ(dRatio, pal.pixelAspectRatio(QSize(720, 576), false));
    EXPECT_EQ(288.0 * (20.12 / 15.09) / 720.0 * 2.0, pal.pixelAspectRatio(QSize(720, 288), true));
    EXPECT_EQ(0.0, TQ_FilmTypeFactory::byName("16mm").defPixelAspectRatio());
    EXPECT_EQ(0.0, TQ_FilmTypeFactory::byName("70mm IMAX").defPixelAspectRatio());

    EXPECT_TRUE(filmTypeMatchesHeight(pal, 576));
    EXPECT_TRUE(filmTypeMatchesHeight(pal, 0));
    EXPECT_FALSE(filmTypeMatchesHeight(pal, 480));
    EXPECT_FALSE(filmTypeMatchesHeight(TQ_FilmTypeFactory::byName("16mm"), 428));
    TQ::FilmType const ntsc = TQ_FilmTypeFactory::byName("NTSC");
    EXPECT_TRUE(filmTypeMatchesSize(ntsc, QSize(720, 480)));
    EXPECT_FALSE(filmTypeMatchesSize(ntsc, QSize(720, 576)));
    EXPECT_TRUE(filmTypeMatchesSize(ntsc, QSize(0, 0)));
}

TEST(FilmType, BestMatchForSize)
{
    auto match = [](int w, int h, bool doubled) {
        return TQ_FilmTypeFactory::bestMatchForSize(QSize(w, h), doubled).name;
    };
    EXPECT_EQ("HD", match(1920, 1080, false));
    EXPECT_EQ("HDV", match(1440, 1080, false));
    EXPECT_EQ("DVCPRO HD 1080", match(1000, 1080, false));
    EXPECT_EQ("PAL", match(720, 288, true));
    EXPECT_EQ("PAL", match(720, 576, false));
    EXPECT_EQ("NTSC", match(720, 243, true));
    EXPECT_EQ("HD", match(1280, 720, false));
    EXPECT_EQ("DVCPRO HD 720", match(100, 720, false));
    EXPECT_EQ("HD", match(640, 240, true));
    EXPECT_EQ("Super 35 (3 Perf) B", match(2048, 1160, false));
    EXPECT_TRUE(match(720, 540, false).isNull());
    EXPECT_EQ("PAL", match(500, 0, false));
    EXPECT_EQ("PAL", match(0, 0, false));
}

TEST(FilmType, BestMatchForPAR)
{
    auto match = [](double par, int w, int h, bool doubled) {
        return TQ_FilmTypeFactory::bestMatchForPAR(par, QSize(w, h), doubled);
    };
    EXPECT_EQ("HD", match(1.0, 1920, 1080, false).name);
    EXPECT_EQ("HD", match(1.0, 1280, 720, false).name);
    EXPECT_EQ("NTSC", match(0.9, 720, 486, false).name);
    EXPECT_EQ("NTSC", match(0.9, 720, 243, true).name);
    EXPECT_EQ("PAL", match(16.0 / 15.0, 720, 576, false).name);
    EXPECT_EQ("PAL Anamorphic", match(64.0 / 45.0, 720, 576, false).name);
    // Rows 19 and 20 share a gate; only the exact size chooses between them.
    EXPECT_EQ("Super 35 (3 Perf) A", match(1156.0 * (24.9 / 13.9) / 2048.0, 2048, 1156, false).name);
    // No exact size in range: the first of equal height wins in aspect index order, where HD stands
    // ahead of the table's earlier DVCPRO HD 1080.
    EXPECT_EQ("HD", match(1.92, 1000, 1080, false).name);
    EXPECT_EQ("DVCPRO HD 1080", match(1.5, 1280, 1080, false).name);

    TQ::FilmType const custom = match(1.0, 720, 485, false);
    EXPECT_TRUE(custom.isCustom());
    EXPECT_EQ(720.0, custom.filmBackWidth);
    EXPECT_EQ(485.0, custom.filmBackHeight);

    // Doubled: the fallback gets the field size, so the width is halved to keep the frame's ratio.
    TQ::FilmType const field = match(1.0, 720, 485, true);
    EXPECT_TRUE(field.isCustom());
    EXPECT_EQ(360.0, field.filmBackWidth);
    EXPECT_EQ(485.0, field.filmBackHeight);

    // In aspect range and tolerance but no size or height: custom.
    TQ::FilmType const noHeight = match(1.0, 1600, 900, false);
    EXPECT_TRUE(noHeight.isCustom());
    EXPECT_EQ(1600.0, noHeight.filmBackWidth);

    EXPECT_FALSE(match(0.0, 720, 576, false).isValid());
    EXPECT_FALSE(match(-1.0, 720, 576, false).isValid());
    EXPECT_FALSE(match(1.0, 0, 576, false).isValid());
    EXPECT_FALSE(match(1.0, 720, 0, false).isValid());
    EXPECT_FALSE(match(std::nan(""), 720, 576, false).isValid());
}

TEST(FilmType, CustomHelpers)
{
    EXPECT_EQ(0.0, TQ_FilmTypeFactory::requiredFilmAspectFromParAndDims(1.0, QSize(0, 10)));
    EXPECT_EQ(0.0, TQ_FilmTypeFactory::requiredFilmAspectFromParAndDims(1.0, QSize(10, 0)));
    EXPECT_EQ(2.0 * (3.0 / 7.0), TQ_FilmTypeFactory::requiredFilmAspectFromParAndDims(2.0, QSize(3, 7)));

    TQ::FilmType const custom = TQ_FilmTypeFactory::customTypeForParAndDims(1.5, QSize(100, 50), true);
    EXPECT_EQ(75.0, custom.filmBackWidth);
    EXPECT_EQ(50.0, custom.filmBackHeight);
    EXPECT_EQ(150.0, TQ_FilmTypeFactory::customTypeForParAndDims(1.5, QSize(100, 50), false).filmBackWidth);
    EXPECT_FALSE(TQ_FilmTypeFactory::customTypeForParAndDims(0.0, QSize(100, 50), false).isValid());
    EXPECT_FALSE(TQ_FilmTypeFactory::customTypeForParAndDims(1.0, QSize(100, 0), false).isValid());
    EXPECT_FALSE(TQ_FilmTypeFactory::customTypeForParAndDims(1.0, QSize(100, 0), false).isCustom());
}
