// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// An operand of one call in memory.

#ifndef LXPM_TESTS_SUPPORT_PLACED_OPERAND_H
#define LXPM_TESTS_SUPPORT_PLACED_OPERAND_H

#include "support/arena.h"
#include "support/callable.h"
#include "support/model.h"
#include "support/patterns.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lxpm::test {

/// Which guard page an operand and its pointer array touch.
enum class Edge { Front, Back };

struct Placement {
    const Pattern *pattern = &dense;
    Edge edge = Edge::Front;
    int shift = 0;        // elements between the front guard page and the operand: every alignment that is allowed
    unsigned shuffle = 0; // seed of the order of the pointers; 0 leaves them in order
    int ptrOffset = 0;    // in elements
};

class PlacedOperand {
public:
    PlacedOperand(const Operand &operand, Layout layout, ElementType type, const Shape &shape, int count,
                  const Placement &placement);

    const Operand &model() const { return operand_; }
    Form form() const { return form_; }
    int objects() const { return objects_; }
    int rows() const { return rows_; }
    int columns() const { return columns_; }
    int elementSize() const { return size_; }

    /// The same memory, described by the same parameters, in another role.
    void becomeSameAs(const PlacedOperand &other);

    /// The address of a logical element. An operand that is not an array is the same for every object.
    std::byte *element(int object, int row, int column);

    /// The bits of an element, in the low bytes.
    std::uint64_t bits(int object, int row, int column);
    void setBits(int object, int row, int column, std::uint64_t bits);

    /// Where the contents of an element to be expected are kept.
    std::byte *expectedElement(int object, int row, int column);

    /// Elements of which only NaN is expected.
    const std::vector<std::byte *> &anyNan() const { return anyNan_; }
    void expectAnyNan(int object, int row, int column) { anyNan_.push_back(element(object, row, column)); }

    /// Elements of which nothing is expected.
    const std::vector<std::byte *> &anything() const { return anything_; }
    void expectAnything(int object, int row, int column) { anything_.push_back(element(object, row, column)); }

    /// Every element is expected to be what the contents to be expected say.
    void forgetExceptions() {
        anyNan_.clear();
        anything_.clear();
    }

    /// Whether this operand stands in the way of a contiguous kernel.
    bool isContiguous() const { return !hasElementStride(operand_, form_) || strides_.element == size_; }

    void appendArguments(std::vector<Argument> &arguments) const;

    /// The memory of the elements and that of the pointer array; null where there is none.
    const std::shared_ptr<Arena> &memory() const { return memory_; }
    const std::shared_ptr<Arena> &pointerMemory() const { return pointerMemory_; }

    /// "object 2, row 0, column 1" when the byte belongs to an element, else "".
    std::string nameOfElementAt(const std::byte *address);

    /// In words, for a failure's report.
    std::string describe() const;

private:
    std::ptrdiff_t offsetOfStored(int object, int row, int column) const;
    void makePointers();

    Operand operand_;
    Placement placement_;
    Form form_;
    ElementType type_;
    int size_;
    int objects_;
    int rows_;
    int columns_;
    int storedRows_;
    int storedColumns_;
    Strides strides_ = {};
    std::vector<int> slots_; // the place of each pointer's target among the objects, or among the elements
    std::shared_ptr<Arena> memory_;
    std::shared_ptr<Arena> pointerMemory_;
    std::byte *base_ = nullptr;
    std::byte *pointers_ = nullptr;
    std::byte value_[8] = {}; // a constant that is passed by value
    std::vector<std::byte *> anyNan_;
    std::vector<std::byte *> anything_;
};

} // namespace lxpm::test

#endif
