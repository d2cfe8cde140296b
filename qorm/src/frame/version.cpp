#include "qorm/version.h"

const qorLibraryVersion* qormGetLibVersion(void) {
    static constexpr qorLibraryVersion version = {
        .major = 5,
        .minor = 1,
        .buildMajor = 133,
        .buildMinor = 205,
        .targetCode = {'p', 'x', '\0', '\0'},
        .libraryName = "libqormpx-5.1.dylib",
        .versionText = "5.1.1",
        .buildDate = "Jun 17 2006",
    };
    return &version;
}
