#include "gandalf/List.h"

#include <new>

struct Gan_ListNode {
    void* data;
    Gan_ListNode* next;
    Gan_ListNode* prev;
};

struct Gan_List {
    Gan_ListNode* head;
    Gan_ListNode* tail;
    Gan_ListNode* current; // null: before the first node
    bool bPastEnd;
    int size;
};

extern "C" {

Gan_List* gan_list_new(void)
{
    return new (std::nothrow) Gan_List{nullptr, nullptr, nullptr, false, 0};
}

void gan_list_free(Gan_List* list, void (*freeData)(void*))
{
    if (!list)
        return;
    Gan_ListNode* node = list->head;
    while (node) {
        Gan_ListNode* next = node->next;
        if (freeData)
            freeData(node->data);
        delete node;
        node = next;
    }
    delete list;
}

Gan_Bool gan_list_insert_last(Gan_List* list, void* data)
{
    if (!list)
        return GAN_FALSE;
    auto* node = new (std::nothrow) Gan_ListNode{data, nullptr, list->tail};
    if (!node)
        return GAN_FALSE;
    if (list->tail)
        list->tail->next = node;
    else
        list->head = node;
    list->tail = node;
    ++list->size;
    return GAN_TRUE;
}

void gan_list_goto_head(Gan_List* list)
{
    if (!list)
        return;
    list->current = nullptr;
    list->bPastEnd = false;
}

int gan_list_get_size(Gan_List const* list)
{
    return list ? list->size : 0;
}

void* gan_list_get_next_node(Gan_List* list)
{
    if (!list || list->bPastEnd)
        return nullptr;
    list->current = list->current ? list->current->next : list->head;
    if (!list->current) {
        list->bPastEnd = true;
        return nullptr;
    }
    return list->current->data;
}

} // extern "C"
