#include "tq.h"
#include <cstdio>
int main() { std::puts("libtq example host"); return 0; }
