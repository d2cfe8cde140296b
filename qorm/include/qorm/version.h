/** @defgroup Version Version
 *  Which build of the library this is.
 *
 *  @{
 */
#ifndef QORM_VERSION_H
#define QORM_VERSION_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** The version record: constant for the life of the process. */
typedef struct qorLibraryVersion {
    int32_t major;           /**< major version */
    int32_t minor;           /**< minor version */
    int32_t buildMajor;      /**< first build number */
    int32_t buildMinor;      /**< second build number */
    char targetCode[4];      /**< build target, "px": the generic processor build */
    const char* libraryName; /**< canonical file name of the library */
    const char* versionText; /**< the version in words */
    const char* buildDate;   /**< date of the release */
} qorLibraryVersion;

/** The one version record of the library; the same address at every call. It is not to be freed. */
QORM_API const qorLibraryVersion* qormGetLibVersion(void);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
