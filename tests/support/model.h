// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// What the tests know about an export: its operands, the parameters they contribute, its order of checks, its choice
// between serial and parallel, and its formula. It is written down again from the documented contract and shares
// nothing with the library, so that the two cannot be wrong together.

#ifndef LXPM_TESTS_SUPPORT_MODEL_H
#define LXPM_TESTS_SUPPORT_MODEL_H

#include <lxp/status.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace lxpm::test {

template <class T>
class Elements;

enum class ElementType { Float32, Float64 };
enum class Layout { Strided, ObjectPointers, ElementPointers };

constexpr int sizeOf(ElementType type) {
    return type == ElementType::Float32 ? 4 : 8;
}

/// The values of an export's logical sizes. Each has one size parameter or, where sizes of operands must agree,
/// several.
using Shape = std::vector<int>;

/// Results: one scalar for each object, one behind the other in every layout, which no stride describes. Indices: whole
/// numbers, in such memory too; as a source, a permutation for each object. Scratch: elements in such memory, which a
/// call may leave in any state.
enum class Kind { Matrix, Transposed, Vector, Constant, Results, Indices, Scratch };

/// An operand of an export, whatever the layout. `rows` and `columns` are those of the logical object, given as
/// positions in the export's shapes, or as negative numbers where they are always the same.
struct Operand {
    static constexpr int one = -1;
    static constexpr int three = -3;

    std::string role;
    Kind kind;
    bool isArray;
    bool isWritten;
    int rows;
    int columns;
    std::optional<Layout> ownLayout = {}; // where the operands of an export differ in layout
    bool isDense = false;                 // plain dense memory, described by its first element's address alone
    bool isObjStrideLate = false;         // checked apart from the other strides, and only where count > 1
    std::string pointer = {};             // the name of the pointer where it is not the role
    bool standsLast = false;              // in the argument list, behind the count
    std::function<int(const Shape &shape)> scratchElements = {};
    bool hasScratchPerThread = false;

    int rowsOf(const Shape &shape) const { return rows < 0 ? -rows : shape[rows]; }
    int columnsOf(const Shape &shape) const { return columns < 0 ? -columns : shape[columns]; }
};

/// How the parameters of an operand describe it. A layout does not touch all operands: a single object keeps its
/// strides among object pointers, an array of constants keeps them among element pointers.
enum class Form { ByValue, Dense, Strided, ObjectPointers, ElementPointers };

Form formOf(const Operand &operand, Layout layout);

/// Whether an operand described in this form has an object stride, a row stride, an element stride.
bool hasObjectStride(const Operand &operand, Form form);
bool hasRowStride(const Operand &operand, Form form);
bool hasElementStride(const Operand &operand, Form form);

enum class ParameterKind { Value, Pointer, Stride, LateStride, Offset, Size, Count };

struct Parameter {
    std::string type; // as C++ spells it: "const float *const *"
    std::string name;
    ParameterKind kind;
    int size = -1; // of a size parameter: its position in the shape
};

enum class Check { Pointers, Count, Sizes, SizeMatch, Strides, Offsets, LateStrides };

LxpStatus statusOf(Check check);

/// The check that looks at a parameter; none looks at a value.
std::optional<Check> checkOf(ParameterKind kind);

/// When a call is handed to the parallel kernel: from the first parallel measure upwards. The measure is a signed
/// 32-bit number that wraps.
struct ParallelRule {
    std::function<int(const Shape &shape, int count)> measure;
    int firstParallelContiguous; // every element stride of the call is the element size
    int firstParallelStrided;

    bool isParallel(const Shape &shape, int count, bool isContiguous) const {
        return measure(shape, count) >= (isContiguous ? firstParallelContiguous : firstParallelStrided);
    }
};

/// What a call should leave in the destinations, one object at a time, and the status of this object; operands in the
/// order in which the model has them.
struct Formula {
    std::function<LxpStatus(std::span<const Elements<float>> operands)> in32f;
    std::function<LxpStatus(std::span<const Elements<double>> operands)> in64f;
};

/// Of a function that returns a status, or nothing where no object can fail.
template <class Function>
Formula formula(Function function) {
    const auto withStatus = [function](auto operands) -> LxpStatus {
        if constexpr (std::is_void_v<decltype(function(operands))>) {
            function(operands);
            return lxpStatusOk;
        } else {
            return function(operands);
        }
    };
    return {withStatus, withStatus};
}

/// Where an element of an operand stands.
struct ElementPlace {
    int operand;
    int object;
    int row;
    int column;
    int columns; // of the operand
};

/// The permutation that a source of indices holds for an object.
int permuted(int object, int index, int order);

/// The values that the size parameters take in tests.
struct SizeAxes {
    std::vector<Shape> all;
    std::vector<Shape> small;   // those that meet every stride pattern and every count
    std::vector<Shape> tight;   // those that are laid against guard pages
    std::vector<Shape> special; // those that NaN, infinities and zeros wander through
};

/// A size parameter stands behind an operand's parameters; one that belongs to no operand behind the destination's.
struct SizeParameter {
    std::string name;
    int size;    // its position in the shape
    int operand; // its position in the list of operands
};

struct ExportName {
    std::string name; // lxpmAdd_mam_32f_L
    std::string operation;
    std::string code;
    ElementType type;
    Layout layout;
};

struct Model : ExportName {
    std::vector<Operand> operands; // in the order of the argument list, the destination last; then what stands last
    std::vector<SizeParameter> sizes;
    bool hasCount;
    std::vector<Check> order;
    std::optional<ParallelRule> parallel; // none: always serial
    Formula formula;
    const SizeAxes *axes;
    bool destinationMayBeSource = true; // as far as their shapes agree

    /// Results that are made element by element, so that of overlapping rows the last one wins.
    bool destinationRowsMayOverlap = true;

    /// What makes good operands of arbitrary values: where an object can fail, or results grow without bound. Gives the
    /// bits of an element in the place of others.
    std::function<std::uint64_t(const ElementPlace &place, std::uint64_t bits)> adjust = {};

    /// Whether an object that fails ends the call. Else the others are computed all the same.
    bool failingObjectEndsCall = false;

    /// Consecutive whole numbers are good operands too.
    bool takesWholeNumbers = true;

    /// A size that may not be larger than another: their positions in the shape.
    std::optional<std::pair<int, int>> notLarger = {};

    /// Whether the sizes of a shape fit each other.
    bool allows(const Shape &shape) const { return !notLarger || shape[notLarger->first] <= shape[notLarger->second]; }

    /// How many sizes a shape has.
    std::size_t dimensions() const { return axes->all.front().size(); }

    /// Whether a size is given by several parameters, which must agree.
    bool mustAgree(int size) const;

    /// Whether whole numbers as operands give exact results: not where they are squared and summed, or a root is taken.
    bool isExactForWholeNumbers = true;

    /// Whether results round through numbers so small that they lose bits.
    bool mayUnderflow = false;

    /// Whether a sum goes in another order where the elements of a shape's rows touch. None: there is one order.
    std::function<bool(const Shape &shape)> splitsContiguousSums = {};

    /// A destination may be the very memory of a source of the same shape and layout that is not read transposed.
    bool mayBeInPlace(int source) const;
};

/// The parameters that an operand contributes, in order.
std::vector<Parameter> parametersOf(const Operand &operand, Layout layout, ElementType type);

/// The whole argument list.
std::vector<Parameter> parametersOf(const Model &model);

} // namespace lxpm::test

#endif
