// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <Eigen/Core>
#include <type_traits>

// A peer's operands as Eigen sees them: at(k) is what takes part in the computation of object k. Sizes are known at
// compile time, which is Eigen at its fastest. Every Object says its size as the largest that it could have.

namespace lxpm::bench::eigen {

template <class T, int order>
using Matrix = Eigen::Matrix<T, order, order, Eigen::RowMajor>;
template <class T, int len>
using Vector = Eigen::Matrix<T, len, 1>;

// For decompositions of more than 8 rows, whose sizes Eigen is better told at run time: it calls kernels there instead
// of writing all steps out, which takes the compiler many minutes and gigabytes. The elements need no heap.
template <class T, int height, int width, int options = Eigen::RowMajor>
using Decomposed = std::conditional_t<(height <= 8), Eigen::Matrix<T, height, width, options>,
                                      Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, options, height, width>>;

template <class Object>
class Array {
public:
    explicit Array(const void *data) : data_(static_cast<const Scalar *>(data)) {}
    auto at(long k) const {
        return Eigen::Map<const Object>(data_ + k * Object::MaxSizeAtCompileTime, Object::MaxRowsAtCompileTime,
                                        Object::MaxColsAtCompileTime);
    }

private:
    using Scalar = typename Object::Scalar;
    const Scalar *data_;
};

template <class Object>
class TransposedArray {
public:
    explicit TransposedArray(const void *data) : array_(data) {}
    auto at(long k) const { return array_.at(k).transpose(); }

private:
    Array<Object> array_;
};

// A copy, so that the compiler may keep it in registers: it need not fear that a result is stored over it.
template <class Object>
class Single {
public:
    explicit Single(const void *data) : object_(Eigen::Map<const Object>(static_cast<const Scalar *>(data))) {}
    const Object &at(long) const { return object_; }

private:
    using Scalar = typename Object::Scalar;
    Object object_;
};

// A constant meets every element of an object.
template <class Object>
class ConstantArray {
public:
    explicit ConstantArray(const void *data) : data_(static_cast<const Scalar *>(data)) {}
    auto at(long k) const { return Object::Constant(data_[k]); }

private:
    using Scalar = typename Object::Scalar;
    const Scalar *data_;
};

template <class Object>
class Constant {
public:
    explicit Constant(const void *data) : value_(*static_cast<const Scalar *>(data)) {}
    auto at(long) const { return Object::Constant(value_); }

private:
    using Scalar = typename Object::Scalar;
    Scalar value_;
};

} // namespace lxpm::bench::eigen
