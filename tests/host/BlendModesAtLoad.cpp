// Loads the library as a host does and checks that the blend modes registered themselves while it
// loaded: the count and names are taken by a static object of this program, before main runs.
#include "support/BlendMode.h"

#include <cstdio>
#include <string>

namespace {

struct SeenBeforeMain {
    SeenBeforeMain()
        : iCount(BlendMode::getBlendModeCount()), names(BlendMode::getConcatenatedNames()),
          bFallbackIsAdd(BlendMode::fromID(static_cast<AEBlendModeID>(0)) != nullptr &&
                         BlendMode::fromID(static_cast<AEBlendModeID>(0))->qstrName == QStringLiteral("Add"))
    {
    }
    int iCount;
    std::string names;
    bool bFallbackIsAdd;
};

SeenBeforeMain const seen;

} // namespace

int main()
{
    bool const bOk = seen.iCount == 3 && seen.names == "Add|Subtract|Multiply" && seen.bFallbackIsAdd;
    std::printf("before main: %d blend modes \"%s\"%s\n", seen.iCount, seen.names.c_str(),
                seen.bFallbackIsAdd ? ", unknown id gives Add" : ", unknown id does not give Add");
    return bOk ? 0 : 1;
}
