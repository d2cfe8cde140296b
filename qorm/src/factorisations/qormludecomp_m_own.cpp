// Cores: LU factorisation of a matrix.
#include "factorisations/lu.h"
#include "frame/cores.h"
#include "qorm/ludecomp.h"

#include "factorisations/qormludecomp_m.def"

// The general routine of each access pattern.
#define QORM_LU_COMMON(name, type, access) \
    QORM_CORE(name, qorm::factorisations::factoriseLuAtAnySize, access, QORM_LU_ARGUMENTS, \
              QORM_TYPE_##type, m)

QORM_LU_COMMON(ownqormLUDecomp_m_32f_S_com, 32f, C)
QORM_LU_COMMON(ownqormLUDecomp_m_32f_S2_com, 32f, S)
QORM_LU_COMMON(ownqormLUDecomp_m_32f_P_com, 32f, P)
QORM_LU_COMMON(ownqormLUDecomp_m_64f_S_com, 64f, C)
QORM_LU_COMMON(ownqormLUDecomp_m_64f_S2_com, 64f, S)
QORM_LU_COMMON(ownqormLUDecomp_m_64f_P_com, 64f, P)
