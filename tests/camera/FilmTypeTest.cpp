#include "camera/FilmTypeFactory.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace {

TQ::FilmType film(char const* name) { return TQ_FilmTypeFactory::byName(name); }

} // namespace

TEST(FilmType, AspectIndexOrderAndTable)
{
    QStringList const expected = {
        "Custom", "35mm Full Aperture", "PAL", "NTSC", "70mm IMAX", "65mm (15 Perf)", "65mm (10 Perf)",
        "CS4 D1 NTSC", "CS4 DV NTSC", "CS4 PAL", "16mm", "35mm Academy", "65mm (8 Perf)", "35mm VistaVision",
        "Super 16mm", "NTSC Anamorphic", "PAL Anamorphic", "HD", "HDV", "DVCPRO HD 1080", "DVCPRO HD 720",
        "Super 35 (3 Perf) B", "Super 35 (3 Perf) A", "Scope Super 35", "CS4 D1 NTSC Anamorphic",
        "CS4 DV NTSC Anamorphic", "CS4 PAL Anamorphic", "Flat 1.85:1", "65mm (5 Perf)", "Cinemascope/Panavision"};
    QStringList actual;
    for (TQ::FilmType const& row : TQ_FilmTypeFactory::getInstance().get<TQ_FilmTypeFactory::ByAspect>())
        actual << row.name;
    EXPECT_EQ(expected.join('|').toStdString(), actual.join('|').toStdString());

    // Equal ratios must be bit-for-bit equal, neighbours bit-for-bit different.
    struct { char const* name; double dRatio; } const ratios[] = {
        {"35mm Full Aperture", 1.3333333333333333}, {"NTSC", 1.3333333333333335},
        {"70mm IMAX", 1.3377042949448879}, {"PAL Anamorphic", 1.7776992401484362},
        {"DVCPRO HD 720", 1.7777777777777777}, {"Cinemascope/Panavision", 2.3607271553810576}};
    for (auto const& r : ratios)
        EXPECT_EQ(r.dRatio, film(r.name).getFilmBackAspectRatio()) << r.name;

    QList<QString> const names = TQ_FilmTypeFactory::getAllNames();
    ASSERT_TRUE(names.size() == 30 && TQ_FilmTypeFactory::getInstance().size() == 30);
    EXPECT_TRUE(names.first() == "PAL" && names[28] == "70mm IMAX" && names.last() == "Custom");
    EXPECT_EQ("Custom", TQ_FilmTypeFactory::names().Custom);
    EXPECT_EQ("Flat 1.85:1", TQ_FilmTypeFactory::names().Flat185);

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

    EXPECT_EQ(0.0, TQ_FilmTypeFactory::requiredFilmAspectFromParAndDims(1.0, QSize(0, 10)));
    EXPECT_EQ(0.0, TQ_FilmTypeFactory::requiredFilmAspectFromParAndDims(1.0, QSize(10, 0)));
    EXPECT_EQ(2.0 * (3.0 / 7.0), TQ_FilmTypeFactory::requiredFilmAspectFromParAndDims(2.0, QSize(3, 7)));
    // A custom type's width is the pixel aspect ratio times the width, halved for fields.
    EXPECT_EQ(75.0, TQ_FilmTypeFactory::customTypeForParAndDims(1.5, QSize(100, 50), true).filmBackWidth);
}

TEST(FilmType, BestMatchForSizeAndPAR)
{
    struct { int w, h; bool doubled; char const* name; } const rows[] = {
        {1920, 1080, false, "HD"}, {1440, 1080, false, "HDV"}, {1000, 1080, false, "DVCPRO HD 1080"},
        {720, 288, true, "PAL"}, {720, 576, false, "PAL"}, {720, 243, true, "NTSC"}, {1280, 720, false, "HD"},
        {100, 720, false, "DVCPRO HD 720"}, {640, 240, true, "HD"}, {2048, 1160, false, "Super 35 (3 Perf) B"},
        {720, 540, false, nullptr}, {500, 0, false, "PAL"}, {0, 0, false, "PAL"}};
    for (auto const& r : rows) {
        QString const name = TQ_FilmTypeFactory::bestMatchForSize(QSize(r.w, r.h), r.doubled).name;
        SCOPED_TRACE(testing::Message() << r.w << "x" << r.h << " doubled " << r.doubled);
        if (r.name)
            EXPECT_EQ(r.name, name);
        else
            EXPECT_TRUE(name.isNull());
    }

    auto match = [](double par, int w, int h, bool doubled) {
        return TQ_FilmTypeFactory::bestMatchForPAR(par, QSize(w, h), doubled);
    };
    // Super 35 A and B share a gate; only the exact size chooses between them. With no exact size in range
    // the first of equal height wins in aspect index order, where HD stands ahead of DVCPRO HD 1080.
    struct { double par; int w, h; bool doubled; char const* name; } const named[] = {
        {1.0, 1920, 1080, false, "HD"}, {1.0, 1280, 720, false, "HD"}, {0.9, 720, 486, false, "NTSC"},
        {0.9, 720, 243, true, "NTSC"}, {16.0 / 15.0, 720, 576, false, "PAL"},
        {64.0 / 45.0, 720, 576, false, "PAL Anamorphic"},
        {1156.0 * (24.9 / 13.9) / 2048.0, 2048, 1156, false, "Super 35 (3 Perf) A"},
        {1.92, 1000, 1080, false, "HD"}, {1.5, 1280, 1080, false, "DVCPRO HD 1080"}};
    for (auto const& r : named)
        EXPECT_EQ(r.name, match(r.par, r.w, r.h, r.doubled).name) << r.par << " " << r.w << "x" << r.h;

    // Doubled: the fallback gets the field size, so the width is halved to keep the frame's ratio. The last
    // row is in aspect range and tolerance but matches no size or height.
    struct { int w, h; bool doubled; double dWidth; } const customs[] = {
        {720, 485, false, 720.0}, {720, 485, true, 360.0}, {1600, 900, false, 1600.0}};
    for (auto const& r : customs) {
        TQ::FilmType const custom = match(1.0, r.w, r.h, r.doubled);
        EXPECT_TRUE(custom.isCustom()) << r.w << "x" << r.h;
        EXPECT_EQ(r.dWidth, custom.filmBackWidth);
        EXPECT_EQ(double(r.h), custom.filmBackHeight);
    }

    struct { double par; int w, h; } const invalid[] = {
        {0.0, 720, 576}, {-1.0, 720, 576}, {1.0, 0, 576}, {1.0, 720, 0}, {std::nan(""), 720, 576}};
    for (auto const& r : invalid)
        EXPECT_FALSE(match(r.par, r.w, r.h, false).isValid()) << r.par << " " << r.w << "x" << r.h;
}
