// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <tuple>
#include <vector>

// Operands of the library in the forms that are measured. An operand knows the arguments that describe it, so a call is
// the operands' arguments one after the other, the sizes and the count.

namespace lxpm::bench {

enum class Form {
    dense,             // strided: no gaps anywhere
    padded,            // strided: rows (vectors) padded by one to four elements, to a multiple of four
    objectPointers,    // _L: a pointer to each object of a dense array, in order
    elementPointers,   // _P: pointers to the elements of the first object of a dense array
    structureOfArrays, // _P: all first elements one behind the other, then all second elements...
};

constexpr bool usesObjectPointers(Form form) {
    return form == Form::objectPointers;
}
constexpr bool usesElementPointers(Form form) {
    return form == Form::elementPointers || form == Form::structureOfArrays;
}

// An object's size; a vector has one row.
struct Size {
    int rows;
    int columns;
    int elements() const { return rows * columns; }
};

enum class Kind { matrix, vector, constant };

// Kinds and numbers of objects under the names that they have in the exports.
template <Kind objectKind, bool many>
struct Code {
    static constexpr Kind kind = objectKind;
    static constexpr bool array = many;
};
namespace codes {
using m = Code<Kind::matrix, false>;
using ma = Code<Kind::matrix, true>;
using ta = ma; // described by the same arguments; the function reads them differently
using v = Code<Kind::vector, false>;
using va = Code<Kind::vector, true>;
using c = Code<Kind::constant, false>;
using ca = Code<Kind::constant, true>;
} // namespace codes

// Distances in elements.
struct Distances {
    std::size_t object;
    std::size_t row;
    std::size_t element;

    Distances(Form form, Size size, long count) : row(size.columns), element(1) {
        if (form == Form::padded) {
            row = (size.columns / 4 + 1) * 4;
        }
        object = size.rows * row;
        if (form == Form::structureOfArrays) {
            object = 1;
            element = count;
            row = size.columns * element;
        }
    }
};

// The bytes that one object takes, padding included.
template <class Code, class T>
std::size_t footprint(Form form, Size size) {
    if (!Code::array) {
        return 0;
    }
    if (Code::kind == Kind::constant) {
        return sizeof(T);
    }
    return sizeof(T) * (form == Form::structureOfArrays ? size.elements() : Distances(form, size, 1).object);
}

template <class Code, class T, Form form>
class Operand {
public:
    Operand(T *base, Size size, long count)
        : base_(base), size_(size), count_(count),
          distances_(Code::kind == Kind::constant ? Distances(Form::dense, {1, 1}, count)
                                                  : Distances(form, size, Code::array ? count : 1)),
          pointers_(pointers()) {}

    auto arguments() const {
        if constexpr (Code::kind == Kind::constant && !Code::array) {
            return std::tuple(*base_);
        } else if constexpr (usesElementPointers(form) && Code::kind != Kind::constant) {
            return std::tuple_cat(std::tuple(pointers_->data(), 0), objectStride());
        } else if constexpr (usesObjectPointers(form) && Code::array) {
            return std::tuple_cat(std::tuple(pointers_->data(), 0), innerStrides());
        } else {
            return std::tuple_cat(std::tuple(base_), objectStride(), innerStrides());
        }
    }

private:
    auto objectStride() const {
        if constexpr (Code::array) {
            return std::tuple(bytes(distances_.object));
        } else {
            return std::tuple();
        }
    }

    auto innerStrides() const {
        if constexpr (Code::kind == Kind::matrix) {
            return std::tuple(bytes(distances_.row), bytes(distances_.element));
        } else if constexpr (Code::kind == Kind::vector) {
            return std::tuple(bytes(distances_.element));
        } else {
            return std::tuple();
        }
    }

    static int bytes(std::size_t distance) { return static_cast<int>(distance * sizeof(T)); }

    // Shared by the operand's copies, which a prepared call is made of.
    std::shared_ptr<const std::vector<T *>> pointers() const {
        auto pointers = std::make_shared<std::vector<T *>>();
        if (usesElementPointers(form)) {
            for (int i = 0; i < size_.rows; ++i) {
                for (int j = 0; j < size_.columns; ++j) {
                    pointers->push_back(base_ + i * distances_.row + j * distances_.element);
                }
            }
        } else if (usesObjectPointers(form)) {
            for (long k = 0; k < count_; ++k) {
                pointers->push_back(base_ + k * distances_.object);
            }
        }
        return pointers;
    }

    T *base_;
    Size size_;
    long count_;
    Distances distances_;
    std::shared_ptr<const std::vector<T *>> pointers_;
};

// The sizes as they stand in an argument list, by the kind of the result.
template <Kind kind>
auto sizeArguments(Size size) {
    if constexpr (kind == Kind::matrix) {
        return std::tuple(size.columns, size.rows);
    } else {
        return std::tuple(size.columns);
    }
}

} // namespace lxpm::bench
