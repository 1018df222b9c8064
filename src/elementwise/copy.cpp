// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "elementwise/copy.h"

#include "elementwise/copy_elements.h"
#include "elementwise/threshold.h"

namespace lxpm {

namespace {

constexpr InOrder oneObject = {Check::Pointers, Check::Sizes, Check::Count, Check::Strides, Check::Offsets};
constexpr InOrder severalObjects = {Check::Pointers, Check::Sizes,   Check::Count,
                                    Check::Strides,  Check::Offsets, Check::LateStrides};

} // namespace

template <Code operands, class T, Layout from, Layout to>
LxpStatus CopyMember<operands, T, from, to>::run(const Arguments &arguments) {
    const auto &[source, destination, size, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();
    const int count = number.value;

    const LxpStatus status = count > 1 ? firstFailure<severalObjects>(arguments) : firstFailure<oneObject>(arguments);
    if (status != lxpStatusOk) {
        return status;
    }
    const bool parallel = movedByOneThread.isParallel(Work(2) * width * height * count);
    return copyElements<T>(parallel, count, height, width,
                           {destination.addresses(height, width), {source.addresses(height, width)}});
}

} // namespace lxpm

#define EXPORT_LIST "elementwise/copy.list.h"
#include "runtime/instantiate.h"
