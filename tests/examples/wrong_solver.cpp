// Stands before the library's solver and makes the last unknown a tenth too large.
#include "qorm/choleskybacksubst.h"

#include <cstddef>
#include <dlfcn.h>

qorStatus qormCholeskyBackSubst_mava_64f(const double* pSrc1, int32_t src1Stride0,
                                         int32_t src1Stride1, int32_t src1Stride2,
                                         const double* pSrc2, int32_t src2Stride0,
                                         int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                         int32_t dstStride2, int32_t widthHeight, int32_t count) {
    using Solver = decltype(&qormCholeskyBackSubst_mava_64f);
    static const auto solver =
        reinterpret_cast<Solver>(dlsym(RTLD_NEXT, "qormCholeskyBackSubst_mava_64f"));
    const qorStatus status =
        solver(pSrc1, src1Stride0, src1Stride1, src1Stride2, pSrc2, src2Stride0, src2Stride2, pDst,
               dstStride0, dstStride2, widthHeight, count);
    for (int32_t n = 0; n < count; ++n) {
        char* const x = reinterpret_cast<char*>(pDst) + std::ptrdiff_t{n} * dstStride0;
        *reinterpret_cast<double*>(x + std::ptrdiff_t{widthHeight - 1} * dstStride2) *= 1.1;
    }
    return status;
}
