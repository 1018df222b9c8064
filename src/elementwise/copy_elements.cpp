// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "elementwise/copy_elements.h"

#include "runtime/map.h"

namespace lxpm {

template <class T>
LxpStatus copyElements(bool parallel, int count, int rows, int columns, const MapOperands<T, 1> &operands) {
    return mapElements<T, Same, 1>(Same(), parallel, count, rows, columns, operands);
}

template <class T>
void copyObjects(const Extents &extents, const MapOperands<T, 1> &operands) {
    mapObjects<T, Same, 1>(Same(), extents, operands);
}

template LxpStatus copyElements(bool, int, int, int, const MapOperands<float, 1> &);
template LxpStatus copyElements(bool, int, int, int, const MapOperands<double, 1> &);
template void copyObjects(const Extents &, const MapOperands<float, 1> &);
template void copyObjects(const Extents &, const MapOperands<double, 1> &);

} // namespace lxpm
