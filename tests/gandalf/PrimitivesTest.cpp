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
    Gan_Vector3 const p{3, 5, 1};
    Gan_Vector3 const q = gan_mat33_multv3_s(&h, &p);
    EXPECT_DOUBLE_EQ(q.x, 7);
    EXPECT_DOUBLE_EQ(q.y, 22);
    EXPECT_DOUBLE_EQ(q.z, 1);
    Gan_Vector3 const back = gan_mat33_multv3_s(&inv, &q);
    EXPECT_NEAR(back.x, 3, 1e-12);
    EXPECT_NEAR(back.y, 5, 1e-12);
    EXPECT_NEAR(back.z, 1, 1e-12);

    Gan_Matrix33 const singular{1, 2, 3, 2, 4, 6, 0, 0, 1};
    Gan_Matrix33 untouched = gan_mat33_ident_s();
    EXPECT_EQ(gan_mat33_invert(&singular, &untouched, &error), nullptr);
    EXPECT_NE(error, 0);
    EXPECT_EQ(untouched.xx, 1.0);
    EXPECT_EQ(untouched.xy, 0.0);

    Gan_Matrix33 nonFinite = gan_mat33_ident_s();
    nonFinite.yz = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(gan_mat33_invert(&nonFinite, &untouched, nullptr), nullptr);
    nonFinite.yz = std::numeric_limits<double>::infinity();
    EXPECT_EQ(gan_mat33_invert(&nonFinite, &untouched, nullptr), nullptr);
    // Finite entries whose inverse overflows are refused too.
    Gan_Matrix33 const tiny{1e-200, 0, 0, 0, 1e-200, 0, 0, 0, 1e-200};
    EXPECT_EQ(gan_mat33_invert(&tiny, &untouched, nullptr), nullptr);

    // In place.
    Gan_Matrix33 m = h;
    ASSERT_EQ(gan_mat33_invert(&m, &m, nullptr), &m);
    EXPECT_DOUBLE_EQ(m.xx, inv.xx);
    EXPECT_DOUBLE_EQ(m.yz, inv.yz);
}

TEST(List, AppendsWalksAndFreesWithNullSafety)
{
    gan_list_goto_head(nullptr);
    EXPECT_EQ(gan_list_get_size(nullptr), 0);
    EXPECT_EQ(gan_list_get_next_node(nullptr), nullptr);
    EXPECT_EQ(gan_list_insert_last(nullptr, nullptr), GAN_FALSE);

    Gan_List* list = gan_list_new();
    ASSERT_NE(list, nullptr);
    gan_list_goto_head(list);
    EXPECT_EQ(gan_list_get_next_node(list), nullptr);

    int* values[3];
    for (int i = 0; i < 3; ++i) {
        values[i] = new int(10 * i);
        EXPECT_EQ(gan_list_insert_last(list, values[i]), GAN_TRUE);
    }
    EXPECT_EQ(gan_list_get_size(list), 3);
    for (int pass = 0; pass < 2; ++pass) {
        gan_list_goto_head(list);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(gan_list_get_next_node(list), values[i]);
        EXPECT_EQ(gan_list_get_next_node(list), nullptr);
        EXPECT_EQ(gan_list_get_next_node(list), nullptr);
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

    char const* func = nullptr; char const* file = nullptr; char const* message = nullptr;
    int code = 0, line = 0, number = 0;
    ASSERT_EQ(gan_err_get_error(1, &func, &code, &file, &line, &message, &number), 1);
    EXPECT_EQ(std::string(func), "CREATE_LINEAR_TO_LOG_LOOKUP");
    EXPECT_EQ(code, 12);
    EXPECT_EQ(std::string(file), "LookupTableHelperMethods");
    EXPECT_EQ(line, 77);
    EXPECT_EQ(std::string(message), "");
    EXPECT_EQ(number, 32);
    EXPECT_EQ(gan_err_get_error(2, &func, nullptr, nullptr, nullptr, nullptr, nullptr), 0);
    EXPECT_EQ(gan_err_get_error(-1, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), 0);

    int otherThreadCount = -1;
    std::thread([&] { otherThreadCount = gan_err_get_error_count(); }).join();
    EXPECT_EQ(otherThreadCount, 0);

    gan_err_flush_trace();
    EXPECT_EQ(gan_err_get_error_count(), 0);
}

TEST(Image, AllocatesDistortionMapsAndRejectsUndefinedShapes)
{
    Gan_Image* map = gan_image_alloc(GAN_VECTOR_FIELD_2D, GAN_FLOAT, 3, 4);
    ASSERT_NE(map, nullptr);
    EXPECT_EQ(map->stride, 4u * 2u * sizeof(float));
    auto* px = static_cast<float*>(gan_image_get_pixptr(map, 2, 3));
    ASSERT_NE(px, nullptr);
    EXPECT_EQ(px[0], 0.0f);
    px[1] = 5.0f;
    EXPECT_EQ(static_cast<float*>(map->pix_data)[2 * 8 + 3 * 2 + 1], 5.0f);
    EXPECT_EQ(gan_image_get_pixptr(map, 3, 0), nullptr);
    gan_image_free(map);
    gan_image_free(nullptr);

    EXPECT_EQ(gan_image_alloc(GAN_UNDEFINED_IMAGE_FORMAT, GAN_FLOAT, 2, 2), nullptr);
    EXPECT_EQ(gan_image_alloc(GAN_RGB_COLOUR_IMAGE, GAN_UNDEFINED_TYPE, 2, 2), nullptr);
    EXPECT_EQ(gan_image_alloc(GAN_RGB_COLOUR_IMAGE, GAN_DOUBLE, ~0ul, ~0ul), nullptr);

    Gan_ImageHeaderInfo header;
    gan_initialise_image_header_info(&header, GAN_UNDEFINED_IMAGE_FORMAT, GAN_UNDEFINED_TYPE);
    EXPECT_EQ(header.file_format, 13);
    EXPECT_EQ(header.type, 17);
    EXPECT_EQ(header.width, 0u);
}

TEST(LineFeatureMap, DeepCopiesAndFrees)
{
    EXPECT_EQ(gan_line_feature_map_copy(nullptr), nullptr);
    Gan_LineFeatureMap* map = gan_line_feature_map_alloc(480, 640);
    ASSERT_NE(map, nullptr);
    ASSERT_EQ(gan_line_feature_map_add_line(map, {0, 0}, {10, 5}, 0.5, 1), 1);
    ASSERT_EQ(gan_line_feature_map_add_line(map, {1, 1}, {2, 2}, 0.25, 0), 1);
    Gan_LineFeatureMap* copy = gan_line_feature_map_copy(map);
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy->line, map->line);
    gan_line_feature_map_free(map);
    ASSERT_EQ(copy->nline, 2u);
    EXPECT_EQ(copy->line[0].p2.x, 10.0);
    EXPECT_EQ(copy->line[1].strength, 0.25);
    EXPECT_EQ(copy->width, 640u);
    gan_line_feature_map_free(copy);
}

TEST(Helpers, SquareAndStridedCopy)
{
    EXPECT_EQ(gan_sqr_ui(17), 289u);
    double const src[6] = {1, 2, 3, 4, 5, 6};
    double dst[6] = {};
    gan_copy_array_d(src, 2, 3, dst, 1);
    EXPECT_EQ(dst[0], 1);
    EXPECT_EQ(dst[1], 3);
    EXPECT_EQ(dst[2], 5);
    EXPECT_EQ(dst[3], 0);
    EXPECT_EQ(sizeof(Gan_CubicBSplineWeights), 578 * sizeof(double));
}
