// The version record of every variant, and the settings of the sibling library.
#include "harness/library.h"

#include "qorcore.h"
#include "qorm/version.h"

#include <gtest/gtest.h>

namespace {

TEST(Version, isOneConstantRecord) {
    for (const harness::Library& library : harness::libraries()) {
        const auto get =
            reinterpret_cast<decltype(&qormGetLibVersion)>(library.symbol("qormGetLibVersion"));
        const qorLibraryVersion* version = get();
        EXPECT_EQ(version, get());
        EXPECT_EQ(version->major, 5);
        EXPECT_EQ(version->minor, 1);
        EXPECT_EQ(version->buildMajor, 133);
        EXPECT_EQ(version->buildMinor, 205);
        EXPECT_EQ(std::string(version->targetCode, 4), std::string("px\0\0", 4));
        EXPECT_STREQ(version->libraryName, "libqormpx-5.1.dylib");
        EXPECT_STREQ(version->versionText, "5.1.1");
        EXPECT_STREQ(version->buildDate, "Jun 17 2006");
    }
}

TEST(ThreadSetting, keepsAnyValue) {
    const std::int32_t before = qorGetThreadCount();
    EXPECT_GE(before, 1);
    EXPECT_EQ(before, threads_omp_of_n_qor);
    for (const std::int32_t threads : {7, 0, -3, before}) {
        qorSetThreadCount(threads);
        EXPECT_EQ(qorGetThreadCount(), threads);
        EXPECT_EQ(threads_omp_of_n_qor, threads);
    }
}

} // namespace
