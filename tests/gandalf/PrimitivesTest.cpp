#include "gandalf/gandalf.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <thread>

TEST(Matrix33, InvertsRegularAndRefusesSingularOrNonFinite)
{
    Gan_Matrix33 const h{2, 0, 1, 0, 4, 2, 0, 0, 1};
    Gan_Matrix33 inv{};
    int error = -1;
    ASSERT_EQ(gan_mat33_invert(&h, &inv, &error), &inv);
    EXPECT_EQ(error, 0);
    Gan_Vector3 const p{3, 5, 1}, q = gan_mat33_multv3_s(&h, &p), back = gan_mat33_multv3_s(&inv, &q);
    EXPECT_TRUE(q.x == 7 && q.y == 22 && q.z == 1);
    EXPECT_LT(std::fabs(back.x - 3) + std::fabs(back.y - 5) + std::fabs(back.z - 1), 1e-12);
    Gan_Matrix33 m = h; // in place
    ASSERT_EQ(gan_mat33_invert(&m, &m, nullptr), &m);
    EXPECT_TRUE(m.xx == inv.xx && m.yz == inv.yz);

    // Singular, non-finite, and finite with an inverse that overflows: refused, the destination untouched.
    double const nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity();
    for (Gan_Matrix33 const& bad : {Gan_Matrix33{1, 2, 3, 2, 4, 6, 0, 0, 1}, Gan_Matrix33{1, 0, 0, 0, 1, nan, 0, 0, 1},
                                    Gan_Matrix33{1, 0, 0, 0, 1, inf, 0, 0, 1},
                                    Gan_Matrix33{1e-200, 0, 0, 0, 1e-200, 0, 0, 0, 1e-200}}) {
        Gan_Matrix33 untouched = gan_mat33_ident_s();
        error = 0;
        EXPECT_EQ(gan_mat33_invert(&bad, &untouched, &error), nullptr);
        EXPECT_TRUE(error != 0 && untouched.xx == 1.0 && untouched.xy == 0.0);
    }

    // The helpers the warp copies its grids with.
    EXPECT_EQ(gan_sqr_ui(17), 289u);
    EXPECT_EQ(sizeof(Gan_CubicBSplineWeights), 578 * sizeof(double));
    double const src[6] = {1, 2, 3, 4, 5, 6};
    double dst[4] = {};
    gan_copy_array_d(src, 2, 3, dst, 1);
    EXPECT_TRUE(dst[0] == 1 && dst[1] == 3 && dst[2] == 5 && dst[3] == 0);
}

TEST(List, AppendsWalksAndFreesWithNullSafety)
{
    gan_list_goto_head(nullptr);
    EXPECT_TRUE(gan_list_get_size(nullptr) == 0 && gan_list_get_next_node(nullptr) == nullptr);
    EXPECT_EQ(gan_list_insert_last(nullptr, nullptr), GAN_FALSE);
    Gan_List* list = gan_list_new();
    ASSERT_NE(list, nullptr);
    gan_list_goto_head(list);
    EXPECT_EQ(gan_list_get_next_node(list), nullptr);
    int* const values[] = {new int(0), new int(10), new int(20)};
    for (int* value : values)
        EXPECT_EQ(gan_list_insert_last(list, value), GAN_TRUE);
    EXPECT_EQ(gan_list_get_size(list), 3);
    for (int pass = 0; pass < 2; ++pass) {
        gan_list_goto_head(list);
        for (int* value : {values[0], values[1], values[2], static_cast<int*>(nullptr), static_cast<int*>(nullptr)})
            EXPECT_EQ(gan_list_get_next_node(list), value);
    }
    gan_list_free(list, [](void* p) { delete static_cast<int*>(p); });
}

TEST(ErrorTrace, FlushRegisterAndReadPerThread)
{
    gan_err_flush_trace();
    EXPECT_EQ(gan_err_get_error_count(), 0);
    gan_err_register_fileline("first", 1, "a.cpp", 10, "one", 0);
    gan_err_register_fileline("CREATE_LINEAR_TO_LOG_LOOKUP", 12, "LookupTableHelperMethods", 77, nullptr, 32);
    ASSERT_EQ(gan_err_get_error_count(), 2);
    char const *func = nullptr, *file = nullptr, *message = nullptr;
    int code = 0, line = 0, number = 0;
    ASSERT_EQ(gan_err_get_error(1, &func, &code, &file, &line, &message, &number), 1);
    EXPECT_EQ(std::string(func) + "|" + file + "|" + message, "CREATE_LINEAR_TO_LOG_LOOKUP|LookupTableHelperMethods|");
    EXPECT_TRUE(code == 12 && line == 77 && number == 32);
    EXPECT_EQ(gan_err_get_error(2, &func, nullptr, nullptr, nullptr, nullptr, nullptr), 0);
    EXPECT_EQ(gan_err_get_error(-1, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), 0);
    int otherThreadCount = -1;
    std::thread([&] { otherThreadCount = gan_err_get_error_count(); }).join();
    EXPECT_EQ(otherThreadCount, 0);
    gan_err_flush_trace();
    EXPECT_EQ(gan_err_get_error_count(), 0);
}

TEST(Image, AllocatesMapsAndLineFeaturesAndRejectsUndefinedShapes)
{
    Gan_Image* map = gan_image_alloc(GAN_VECTOR_FIELD_2D, GAN_FLOAT, 3, 4);
    ASSERT_NE(map, nullptr);
    EXPECT_EQ(map->stride, 4u * 2u * sizeof(float));
    auto* px = static_cast<float*>(gan_image_get_pixptr(map, 2, 3));
    ASSERT_TRUE(px && px[0] == 0.0f);
    px[1] = 5.0f;
    EXPECT_EQ(static_cast<float*>(map->pix_data)[2 * 8 + 3 * 2 + 1], 5.0f);
    EXPECT_EQ(gan_image_get_pixptr(map, 3, 0), nullptr);
    gan_image_free(map);
    gan_image_free(nullptr);
    EXPECT_TRUE(!gan_image_alloc(GAN_UNDEFINED_IMAGE_FORMAT, GAN_FLOAT, 2, 2)
                && !gan_image_alloc(GAN_RGB_COLOUR_IMAGE, GAN_UNDEFINED_TYPE, 2, 2)
                && !gan_image_alloc(GAN_RGB_COLOUR_IMAGE, GAN_DOUBLE, ~0ul, ~0ul));
    Gan_ImageHeaderInfo header;
    gan_initialise_image_header_info(&header, GAN_UNDEFINED_IMAGE_FORMAT, GAN_UNDEFINED_TYPE);
    EXPECT_TRUE(header.file_format == 13 && header.type == 17 && header.width == 0u);

    // Line feature maps copy deeply.
    EXPECT_EQ(gan_line_feature_map_copy(nullptr), nullptr);
    Gan_LineFeatureMap* lines = gan_line_feature_map_alloc(480, 640);
    ASSERT_TRUE(lines && gan_line_feature_map_add_line(lines, {0, 0}, {10, 5}, 0.5, 1) == 1
                && gan_line_feature_map_add_line(lines, {1, 1}, {2, 2}, 0.25, 0) == 1);
    Gan_LineFeatureMap* copy = gan_line_feature_map_copy(lines);
    ASSERT_TRUE(copy && copy->line != lines->line);
    gan_line_feature_map_free(lines);
    ASSERT_EQ(copy->nline, 2u);
    EXPECT_TRUE(copy->line[0].p2.x == 10.0 && copy->line[1].strength == 0.25 && copy->width == 640u);
    gan_line_feature_map_free(copy);
}
