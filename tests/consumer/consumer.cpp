#include <qorm.h>

#include <cstdio>

int main() {
    const double matrix[4] = {2, 1, 1, 2};
    double buffer[4];
    double values[2];
    const qorStatus status = qormEigenValuesSym_m_64f(matrix, 16, 8, buffer, values, 2);
    std::printf("status %d, eigenvalues %g %g\n", status, values[0], values[1]);
    return status == qorStatusOk && values[0] == 3 && values[1] == 1 ? 0 : 1;
}
