#include "gandalf/LineFeature.h"

#include <cstdlib>
#include <cstring>
#include <new>

extern "C" {

Gan_LineFeatureMap* gan_line_feature_map_alloc(unsigned int height, unsigned int width)
{
    return new (std::nothrow) Gan_LineFeatureMap{0, nullptr, height, width};
}

int gan_line_feature_map_add_line(Gan_LineFeatureMap* map, Gan_Vector2 p1, Gan_Vector2 p2, double strength,
                                  int status)
{
    if (!map)
        return 0;
    void* grown = std::realloc(map->line, (map->nline + 1u) * sizeof(Gan_LineFeature));
    if (!grown)
        return 0;
    map->line = static_cast<Gan_LineFeature*>(grown);
    map->line[map->nline++] = Gan_LineFeature{p1, p2, strength, status};
    return 1;
}

Gan_LineFeatureMap* gan_line_feature_map_copy(Gan_LineFeatureMap const* map)
{
    if (!map)
        return nullptr;
    Gan_LineFeatureMap* copy = gan_line_feature_map_alloc(map->height, map->width);
    if (!copy || map->nline == 0)
        return copy;
    copy->line = static_cast<Gan_LineFeature*>(std::malloc(map->nline * sizeof(Gan_LineFeature)));
    if (!copy->line) {
        delete copy;
        return nullptr;
    }
    std::memcpy(copy->line, map->line, map->nline * sizeof(Gan_LineFeature));
    copy->nline = map->nline;
    return copy;
}

void gan_line_feature_map_free(Gan_LineFeatureMap* map)
{
    if (!map)
        return;
    std::free(map->line);
    delete map;
}

} // extern "C"
