// Rows of elements in memory as Eigen's matrices of fixed size.
#pragma once

#include <Eigen/Core>
#include <type_traits>

namespace bench {

template <class T, int rows, int columns = rows>
using EigenMatrix = Eigen::Matrix<T, rows, columns, Eigen::RowMajor>;

// A map with an explicit step is never taken for one run of elements, even if it is one.
template <int columns, int rowStep>
using EigenStride =
    std::conditional_t<rowStep == columns, Eigen::Stride<0, 0>, Eigen::OuterStride<rowStep>>;

template <class T, int rows, int rowStep, int columns = rows>
using ConstMap = Eigen::Map<const EigenMatrix<T, rows, columns>, 0, EigenStride<columns, rowStep>>;
template <class T, int n, int rowStep>
using Map = Eigen::Map<EigenMatrix<T, n>, 0, EigenStride<n, rowStep>>;

} // namespace bench
