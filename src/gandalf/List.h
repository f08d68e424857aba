#pragma once
/// A doubly linked list of untyped pointers with a current position, enough for a clip's discrete
/// frame records. The list never owns the data it points to unless a free function is given to
/// `gan_list_free`. Every function accepts a null list and then does nothing (or returns 0 / null).

#ifdef __cplusplus
extern "C" {
#endif

#include "gandalf/Common.h"

typedef struct Gan_List Gan_List;

/// A new empty list, or null when memory runs out. Free it with `gan_list_free`.
Gan_List* gan_list_new(void);

/// Frees the list and its nodes. When `freeData` is not null it is called on each node's data first.
void gan_list_free(Gan_List* list, void (*freeData)(void*));

/// Appends `data`. Returns GAN_FALSE for a null list.
Gan_Bool gan_list_insert_last(Gan_List* list, void* data);

/// Moves the current position before the first node, so that the next `gan_list_get_next_node`
/// returns the first node's data.
void gan_list_goto_head(Gan_List* list);

/// Number of nodes.
int gan_list_get_size(Gan_List const* list);

/// Advances the current position and returns that node's data; null past the end.
void* gan_list_get_next_node(Gan_List* list);

#ifdef __cplusplus
}
#endif
