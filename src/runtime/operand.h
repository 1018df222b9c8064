// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Operands: which parameters one contributes to an argument list, which checks these must pass, and where its elements
// stand in memory.

#include "runtime/addresses.h"
#include "runtime/checks.h"
#include "runtime/one_object.h"

#include <array>
#include <cstddef>
#include <numeric>
#include <tuple>
#include <type_traits>
#include <utility>

namespace lxpm {

enum class Layout { Strided, ObjectPointers, ElementPointers };

enum class Shape { Matrix, Transposed, Vector, Constant };

struct Kind {
    Shape shape;
    bool array = false;

    constexpr bool operator==(const Kind &) const = default;
    constexpr bool isMatrix() const { return shape == Shape::Matrix || shape == Shape::Transposed; }
    constexpr bool isConstant() const { return shape == Shape::Constant; }
};

// Never defined: another letter in an operand code does not compile, and this name is in the message.
void operandCodesAreMadeOf_m_t_v_c();

// The operand code of an export's name: "mam" is an array of matrices and a matrix.
class Code {
public:
    static constexpr int longest = 8;

    consteval Code() = default;

    template <std::size_t Size>
    consteval Code(const char (&name)[Size]) {
        static_assert(Size - 1 <= longest);
        for (std::size_t i = 0; i + 1 < Size; ++i) {
            text[i] = name[i];
        }
    }

    constexpr bool operator==(const Code &) const = default;

    // The kind of an operand, counted from 0.
    constexpr Kind operator[](int operand) const {
        int at = 0;
        for (; operand > 0; --operand) {
            at += isArrayAt(at) ? 2 : 1;
        }
        return {shapeOf(text[at]), isArrayAt(at)};
    }

    constexpr bool hasArray() const {
        bool any = false;
        for (char letter : text) {
            any |= letter == 'a';
        }
        return any;
    }

    // Structural, so that a code can be a template argument; not for use.
    char text[longest] = {};

private:
    constexpr bool isArrayAt(int at) const { return at + 1 < longest && text[at + 1] == 'a'; }

    static constexpr Shape shapeOf(char letter) {
        switch (letter) {
        case 'm':
            return Shape::Matrix;
        case 't':
            return Shape::Transposed;
        case 'v':
            return Shape::Vector;
        case 'c':
            return Shape::Constant;
        default:
            operandCodesAreMadeOf_m_t_v_c();
            return Shape::Matrix;
        }
    }
};

template <class... Types>
struct TypeList {};

namespace detail {

template <class First, std::size_t>
using Repeated = First;

template <class First, std::size_t... Index>
TypeList<First, Repeated<int, Index>...> withInts(std::index_sequence<Index...>);

} // namespace detail

// One operand of a call. Element is const for a source.
template <Kind kind, class Element, Layout layout>
class Operand {
    // What the parameters look like. An array of constants has no elements inside of its objects to point to, so it
    // stays strided in the element-pointer layout; only arrays have objects to point to.
    enum class Form { Value, Strided, ObjectPointers, ElementPointers };

    static constexpr Form form = [] {
        if (kind.isConstant() && !kind.array) {
            return Form::Value;
        }
        if (layout == Layout::ElementPointers && !kind.isConstant()) {
            return Form::ElementPointers;
        }
        return layout == Layout::ObjectPointers && kind.array ? Form::ObjectPointers : Form::Strided;
    }();

    static constexpr bool byPointers = form == Form::ObjectPointers || form == Form::ElementPointers;
    static constexpr bool byStrides = form == Form::Strided || form == Form::ObjectPointers;

    // The integers behind the pointer: the offset, then the strides, as far as there are any.
    static constexpr int strideAt = byPointers ? 1 : 0;
    static constexpr bool hasObjStride = kind.array && form != Form::ObjectPointers;
    static constexpr bool hasRowStride = byStrides && kind.isMatrix();
    static constexpr bool hasElemStride = byStrides && !kind.isConstant();
    static constexpr int strides = hasObjStride + hasRowStride + hasElemStride;
    static constexpr int objStrideAt = strideAt;
    static constexpr int rowStrideAt = strideAt + hasObjStride;
    static constexpr int elemStrideAt = rowStrideAt + hasRowStride;
    static constexpr int integers = byPointers + strides;

    using Value = std::remove_const_t<Element>;
    using Lead =
        std::conditional_t<form == Form::Value, Value, std::conditional_t<byPointers, Element *const *, Element *>>;

public:
    using Parameters = decltype(detail::withInts<Lead>(std::make_index_sequence<integers>()));

    static constexpr bool isArray = kind.array;

    template <class... Int>
    explicit constexpr Operand(Lead first, Int... rest) : lead(first), integer{rest...} {}

    [[gnu::always_inline]] constexpr bool violates(Check check) const {
        switch (check) {
        case Check::Pointers:
            if constexpr (form != Form::Value) {
                return lead == nullptr;
            }
            return false;
        case Check::Strides:
            return anyInteger(strideAt, integers, [](int stride) { return (stride & elementMask) != 0 || stride < 1; });
        case Check::Offsets:
            return anyInteger(0, strideAt, [](int offset) { return (offset & elementMask) != 0 || offset < 0; });
        default:
            return false;
        }
    }

    // Whether the elements of a row, as it is stored, touch one another. Constants have no rows.
    constexpr bool isContiguous() const {
        if constexpr (hasElemStride) {
            return integer[elemStrideAt] == static_cast<int>(sizeof(Element));
        } else {
            return true;
        }
    }

    // Zero if the elements of a single object's rows, as they are stored, touch one another and so do its rows.
    [[gnu::always_inline]] constexpr unsigned gaps([[maybe_unused]] int width) const
        requires(!kind.array && form != Form::ElementPointers) {
        unsigned any = 0;
        if constexpr (hasElemStride) {
            any |= static_cast<unsigned>(integer[elemStrideAt]) ^ unsigned(sizeof(Element));
        }
        if constexpr (hasRowStride) {
            any |=
                static_cast<unsigned>(integer[rowStrideAt]) ^ static_cast<unsigned>(width) * unsigned(sizeof(Element));
        }
        return any;
    }

    // A constant by value.
    constexpr Value value() const requires(form == Form::Value) { return lead; }

    // A single object, in rows and columns of the operation.
    constexpr auto object([[maybe_unused]] int height = 1, [[maybe_unused]] int width = 1) const requires(!kind.array) {
        constexpr bool transposed = kind.shape == Shape::Transposed;
        if constexpr (form == Form::Value) {
            return ConstantObject<Value>{lead};
        } else if constexpr (form == Form::ElementPointers) {
            const PointedObject<Element> stored = {lead, offset(), transposed ? height : width, 1};
            return transposed ? stored.transposed() : stored;
        } else {
            const StridedObject<Element> stored = {lead, stride(hasRowStride, rowStrideAt),
                                                   stride(hasElemStride, elemStrideAt)};
            return transposed ? stored.transposed() : stored;
        }
    }

    // Where the elements stand, in rows and columns of the operation: those of a transposed operand are exchanged here
    // and nowhere else. A constant by value is its own address, so the operand has to outlive the addresses.
    constexpr Addresses<Element> addresses([[maybe_unused]] int height = 1, [[maybe_unused]] int width = 1) const {
        constexpr bool transposed = kind.shape == Shape::Transposed;
        if constexpr (form == Form::Value) {
            return Addresses<Element>::strided(&lead, {0, 0, 0});
        } else if constexpr (form == Form::ElementPointers) {
            const Steps pointerStep = transposed ? Steps{0, 1, height} : Steps{0, width, 1};
            return Addresses<Element>::pointed(lead, offset(), pointerStep, {stride(hasObjStride, objStrideAt), 0, 0});
        } else {
            const std::ptrdiff_t object = stride(hasObjStride, objStrideAt);
            const std::ptrdiff_t row = stride(hasRowStride, rowStrideAt);
            const std::ptrdiff_t element = stride(hasElemStride, elemStrideAt);
            const Steps step = transposed ? Steps{object, element, row} : Steps{object, row, element};
            if constexpr (form == Form::ObjectPointers) {
                return Addresses<Element>::pointed(lead, offset(), {1, 0, 0}, step);
            } else {
                return Addresses<Element>::strided(lead, step);
            }
        }
    }

private:
    static constexpr int elementMask = static_cast<int>(sizeof(Element)) - 1;

    constexpr int offset() const { return integer[0]; }

    // A stride that an operand does not have is never taken a step of.
    constexpr std::ptrdiff_t stride(bool exists, int at) const {
        return exists ? integer[static_cast<std::size_t>(at)] : 0;
    }

    template <class Predicate>
    [[gnu::always_inline]] constexpr bool anyInteger(int from, int to, Predicate predicate) const {
        bool any = false;
        for (int i = from; i < to; ++i) {
            any |= predicate(integer[static_cast<std::size_t>(i)]);
        }
        return any;
    }

    Lead lead;
    std::array<int, integers> integer;
};

// A destination in plain dense memory, which its first element's address describes: no gaps between elements, rows and
// objects.
template <class Element>
struct DenseDestination {
    using Parameters = TypeList<Element *>;
    Element *first;

    explicit constexpr DenseDestination(Element *address) : first(address) {}

    [[gnu::always_inline]] constexpr bool violates(Check check) const {
        return check == Check::Pointers && first == nullptr;
    }

    constexpr StridedObject<Element> object(int, int width) const {
        return {first, std::ptrdiff_t(width) * std::ptrdiff_t(sizeof(Element)), sizeof(Element)};
    }

    constexpr Addresses<Element> addresses(int height, int width) const {
        const std::ptrdiff_t row = std::ptrdiff_t(width) * std::ptrdiff_t(sizeof(Element));
        return Addresses<Element>::strided(first, {height * row, row, sizeof(Element)});
    }
};

// The sizes of a call.
template <int N>
struct Sizes {
    using Parameters = decltype(detail::withInts<int>(std::make_index_sequence<N - 1>()));
    std::array<int, N> size;

    template <class... Int>
    explicit constexpr Sizes(Int... sizes) : size{sizes...} {}

    [[gnu::always_inline]] constexpr bool violates(Check check) const {
        bool any = false;
        for (int s : size) {
            any |= s < 1;
        }
        return check == Check::Sizes && any;
    }
};

struct MatrixSize : Sizes<2> {
    using Sizes::Sizes;
    constexpr int width() const { return size[0]; }
    constexpr int height() const { return size[1]; }
};

// A vector is a row.
struct VectorLength : Sizes<1> {
    using Sizes::Sizes;
    constexpr int width() const { return size[0]; }
    constexpr int height() const { return 1; }
};

// A square matrix.
struct MatrixOrder : Sizes<1> {
    using Sizes::Sizes;
    constexpr int width() const { return size[0]; }
    constexpr int height() const { return size[0]; }
};

// Numbers one behind the other, in every layout: row numbers, scratch.
template <class T>
struct PlainArray {
    using Parameters = TypeList<T *>;
    T *first;

    explicit constexpr PlainArray(T *address) : first(address) {}
    [[gnu::always_inline]] constexpr bool violates(Check check) const {
        return check == Check::Pointers && first == nullptr;
    }
};

// Where scalar results go: one for each object.
template <class T>
struct ScalarResults : PlainArray<T> {
    using PlainArray<T>::PlainArray;
};

struct Count {
    using Parameters = TypeList<int>;
    int value;

    explicit constexpr Count(int count) : value(count) {}
    [[gnu::always_inline]] constexpr bool violates(Check check) const { return check == Check::Count && value < 1; }
};

// In the place of Count where no operand is an array.
struct OneObject {
    using Parameters = TypeList<>;
    static constexpr int value = 1;

    [[gnu::always_inline]] constexpr bool violates(Check) const { return false; }
};

// The argument list of an export: what its parts contribute, one behind the other.
template <class... Parts>
class Arguments {
    template <class... P>
    static std::integral_constant<std::size_t, sizeof...(P)> length(TypeList<P...>);
    template <class... A, class... B, class... Rest>
    static auto concatenated(TypeList<A...>, TypeList<B...>, Rest... rest) {
        return concatenated(TypeList<A..., B...>(), rest...);
    }
    template <class... A>
    static LxpStatus (*concatenated(TypeList<A...>))(A...);

public:
    // The type of the export.
    using Signature = std::remove_pointer_t<decltype(concatenated(TypeList<>(), typename Parts::Parameters()...))>;

    template <class... P>
    explicit constexpr Arguments(P... parameters)
        : Arguments(std::tuple<P...>(parameters...), std::index_sequence_for<Parts...>()) {}

    [[gnu::always_inline]] constexpr bool violates(Check check) const {
        return std::apply([check](const Parts &...part) { return (part.violates(check) || ...); }, parts);
    }

    // Operands, sizes and count, in the order of the list.
    std::tuple<Parts...> parts;

private:
    template <class... P, std::size_t... part>
    constexpr Arguments(const std::tuple<P...> &all, std::index_sequence<part...>)
        : parts(made<Parts>(all, std::integral_constant<std::size_t, lengthBefore(part)>(),
                            std::make_index_sequence<decltype(length(typename Parts::Parameters()))::value>())...) {}

    // How many parameters the parts in front of this one contribute.
    static constexpr std::size_t lengthBefore(std::size_t part) {
        const std::size_t lengths[] = {decltype(length(typename Parts::Parameters()))::value...};
        return std::accumulate(lengths, lengths + part, std::size_t(0));
    }

    template <class Part, class... P, std::size_t from, std::size_t... index>
    static constexpr Part made(const std::tuple<P...> &all, std::integral_constant<std::size_t, from>,
                               std::index_sequence<index...>) {
        return Part(std::get<from + index>(all)...);
    }
};

} // namespace lxpm
