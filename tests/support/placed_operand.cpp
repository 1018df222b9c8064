// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/placed_operand.h"

#include <algorithm>
#include <cstring>
#include <numeric>
#include <random>
#include <sstream>

namespace lxpm::test {

namespace {

std::vector<int> orderOf(int count, unsigned seed) {
    std::vector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    if (seed != 0) {
        std::shuffle(order.begin(), order.end(), std::minstd_rand(seed));
    }
    return order;
}

std::byte *place(Arena &arena, std::size_t bytes, Edge edge, std::size_t shift) {
    return edge == Edge::Back ? arena.end() - bytes : arena.begin() + shift;
}

} // namespace

PlacedOperand::PlacedOperand(const Operand &operand, Layout layout, ElementType type, const Shape &shape, int count,
                             const Placement &placement)
    : operand_(operand), placement_(placement), form_(formOf(operand, layout)), type_(type),
      size_(operand.kind == Kind::Indices ? static_cast<int>(sizeof(int)) : sizeOf(type)),
      objects_(operand.isArray ? count : 1), rows_(operand.rowsOf(shape)), columns_(operand.columnsOf(shape)),
      storedRows_(operand.kind == Kind::Transposed ? columns_ : rows_),
      storedColumns_(operand.kind == Kind::Transposed ? rows_ : columns_) {
    if (form_ == Form::ByValue) {
        return;
    }
    if (form_ == Form::Dense) {
        placement_.pattern = &dense;
    }
    strides_ = placement_.pattern->stridesOf({storedRows_, storedColumns_, objects_, size_});
    if (form_ == Form::ObjectPointers) {
        slots_ = orderOf(objects_, placement.shuffle);
    } else if (form_ == Form::ElementPointers) {
        slots_ = orderOf(storedRows_ * storedColumns_, placement.shuffle);
    }

    const std::ptrdiff_t last = static_cast<std::ptrdiff_t>(objects_ - 1) * strides_.object +
                                static_cast<std::ptrdiff_t>(storedRows_ - 1) * strides_.row +
                                static_cast<std::ptrdiff_t>(storedColumns_ - 1) * strides_.element;
    const std::size_t span = last + size_;
    const std::size_t shift = placement.edge == Edge::Front ? placement.shift * size_ : 0;
    memory_ = Arena::acquire(shift + span);
    memory_->fillWithCanaries(type);
    base_ = place(*memory_, span, placement.edge, shift);
    if (!slots_.empty()) {
        makePointers();
    }
}

void PlacedOperand::makePointers() {
    const std::size_t bytes = slots_.size() * sizeof(std::byte *);
    pointerMemory_ = Arena::acquire(bytes);
    pointerMemory_->fillWithCanaries(ElementType::Float64);
    pointers_ = place(*pointerMemory_, bytes, placement_.edge, 0);
    for (std::size_t index = 0; index < slots_.size(); ++index) {
        const int at = static_cast<int>(index);
        const std::ptrdiff_t offset = form_ == Form::ObjectPointers
                                          ? offsetOfStored(at, 0, 0)
                                          : offsetOfStored(0, at / storedColumns_, at % storedColumns_);
        // The offset is taken off beforehand, so that a kernel that forgets to add it meets another element or a
        // guard page.
        const std::uintptr_t pointer = reinterpret_cast<std::uintptr_t>(base_) + offset -
                                       static_cast<std::uintptr_t>(placement_.ptrOffset) * size_;
        std::memcpy(pointers_ + index * sizeof pointer, &pointer, sizeof pointer);
    }
}

void PlacedOperand::becomeSameAs(const PlacedOperand &other) {
    const Operand own = operand_;
    *this = other;
    operand_ = own;
}

std::ptrdiff_t PlacedOperand::offsetOfStored(int object, int row, int column) const {
    if (form_ == Form::ObjectPointers) {
        object = slots_[object];
    } else if (form_ == Form::ElementPointers) {
        const int slot = slots_[row * storedColumns_ + column];
        row = slot / storedColumns_;
        column = slot % storedColumns_;
    }
    return static_cast<std::ptrdiff_t>(object) * strides_.object + static_cast<std::ptrdiff_t>(row) * strides_.row +
           static_cast<std::ptrdiff_t>(column) * strides_.element;
}

std::byte *PlacedOperand::element(int object, int row, int column) {
    if (form_ == Form::ByValue) {
        return value_;
    }
    if (operand_.kind == Kind::Constant || operand_.kind == Kind::Results) {
        row = column = 0;
    } else if (operand_.kind == Kind::Transposed) {
        std::swap(row, column);
    }
    return base_ + offsetOfStored(operand_.isArray ? object : 0, row, column);
}

std::uint64_t PlacedOperand::bits(int object, int row, int column) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, element(object, row, column), size_);
    return bits;
}

void PlacedOperand::setBits(int object, int row, int column, std::uint64_t bits) {
    std::memcpy(element(object, row, column), &bits, size_);
}

std::byte *PlacedOperand::expectedElement(int object, int row, int column) {
    return memory_->expected(element(object, row, column));
}

void PlacedOperand::appendArguments(std::vector<Argument> &arguments) const {
    switch (form_) {
    case Form::ByValue:
        if (type_ == ElementType::Float32) {
            float value;
            std::memcpy(&value, value_, sizeof value);
            arguments.emplace_back(value);
        } else {
            double value;
            std::memcpy(&value, value_, sizeof value);
            arguments.emplace_back(value);
        }
        return;
    case Form::Dense:
    case Form::Strided:
        arguments.emplace_back(static_cast<const void *>(base_));
        break;
    case Form::ObjectPointers:
    case Form::ElementPointers:
        arguments.emplace_back(static_cast<const void *>(pointers_));
        arguments.emplace_back(placement_.ptrOffset * size_);
        break;
    }
    if (hasObjectStride(operand_, form_)) {
        arguments.emplace_back(strides_.object);
    }
    if (hasRowStride(operand_, form_)) {
        arguments.emplace_back(strides_.row);
    }
    if (hasElementStride(operand_, form_)) {
        arguments.emplace_back(strides_.element);
    }
}

std::string PlacedOperand::nameOfElementAt(const std::byte *address) {
    for (int object = 0; object < objects_; ++object) {
        for (int row = 0; row < rows_; ++row) {
            for (int column = 0; column < columns_; ++column) {
                const std::byte *first = element(object, row, column);
                if (first <= address && address < first + size_) {
                    std::ostringstream name;
                    name << "object " << object << ", row " << row << ", column " << column;
                    return name.str();
                }
            }
        }
    }
    return "";
}

std::string PlacedOperand::describe() const {
    std::ostringstream text;
    text << operand_.role << ": ";
    if (form_ == Form::ByValue) {
        text << "by value";
        return text.str();
    }
    text << placement_.pattern->name << ", ";
    if (placement_.edge == Edge::Back) {
        text << "ends at a guard page";
    } else {
        text << placement_.shift << " elements behind a guard page";
    }
    if (!slots_.empty()) {
        text << (placement_.shuffle != 0 ? ", pointers shuffled" : ", pointers in order");
    }
    return text.str();
}

} // namespace lxpm::test
