#include <qorcore.h>
#include <qorm.h>
#include <stdio.h>

/* The sum of two matrices where they lie: fields of one structure. */
struct Pair {
    float a[4];
    float b[4];
    float sum[4];
};

int main(void) {
    struct Pair pairs[2] = {{{1, 2, 3, 4}, {10, 20, 30, 40}, {0}},
                            {{5, 6, 7, 8}, {50, 60, 70, 80}, {0}}};
    const int32_t object = sizeof pairs[0], row = 2 * sizeof(float), element = sizeof(float);
    const qorStatus status =
        qormAdd_mama_32f(pairs[0].a, object, row, element, pairs[0].b, object, row, element,
                         pairs[0].sum, object, row, element, 2, 2, 2);
    printf("%s: status %d, last sum %g, %d threads\n", qormGetLibVersion()->versionText,
           (int)status, (double)pairs[1].sum[3], (int)qorGetThreadCount());
    return status == qorStatusOk && pairs[1].sum[3] == 88.0F ? 0 : 1;
}
