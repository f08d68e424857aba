#pragma once
/// A map of line features found in an image: segments with a strength and a status, in the coordinates
/// of an image of a given size. Maps are deep-copied and freed as a whole.
#include "gandalf/Matrix.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct Gan_LineFeature {
    Gan_Vector2 p1, p2;   ///< end points
    double strength;
    int status;
} Gan_LineFeature;

typedef struct Gan_LineFeatureMap {
    unsigned int nline;       ///< number of lines in `line`
    Gan_LineFeature* line;    ///< owned array of `nline` lines, null when empty
    unsigned int height, width;
} Gan_LineFeatureMap;

/// A new empty map of an image of the given size, or null when memory runs out.
Gan_LineFeatureMap* gan_line_feature_map_alloc(unsigned int height, unsigned int width);

/// Appends a line. Returns 0 for a null map or when memory runs out, 1 otherwise.
int gan_line_feature_map_add_line(Gan_LineFeatureMap* map, Gan_Vector2 p1, Gan_Vector2 p2, double strength,
                                  int status);

/// A deep copy of `map`, or null for a null map or when memory runs out. Free it with
/// `gan_line_feature_map_free`.
Gan_LineFeatureMap* gan_line_feature_map_copy(Gan_LineFeatureMap const* map);

/// Frees the map and its lines. Null is allowed.
void gan_line_feature_map_free(Gan_LineFeatureMap* map);

#ifdef __cplusplus
}
#endif
