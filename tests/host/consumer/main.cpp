// A host program built outside the tree against the installed package.
#include <tq.h>

#include <cstdio>

int main()
{
    Bsc::Hash hash;
    hash.update("tq", 2);
    Gan_Matrix33 const identity = gan_mat33_ident_s();
    Gan_Matrix33 inverse;
    if (!gan_mat33_invert(&identity, &inverse, nullptr) || hash == Bsc::Hash())
        return 1;
    std::puts("consumer ok");
    return 0;
}
