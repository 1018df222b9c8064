// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "graphics/trial.h"

#include <cmath>
#include <cstring>
#include <iomanip>
#include <limits>
#include <sstream>

#include <xmmintrin.h>

namespace lxpm::test {

namespace {

constexpr unsigned exceptionFlags = 0x3f;
constexpr unsigned invalidFlag = 0x01;

float floatAt(const std::byte *address) {
    float value;
    std::memcpy(&value, address, sizeof value);
    return value;
}

} // namespace

Values ordinaryValues(unsigned seed) {
    const auto next = [random = std::mt19937(seed)]() mutable {
        std::uniform_real_distribution<float> fraction(1, 2);
        std::uniform_int_distribution<int> exponent(-3, 3);
        const float value = std::ldexp(fraction(random), exponent(random));
        return random() % 2 == 0 ? value : -value;
    };
    return {next, true};
}

Values specialValues(unsigned seed) {
    const auto next = [random = std::mt19937(seed), ordinary = ordinaryValues(seed)]() mutable {
        using Limits = std::numeric_limits<float>;
        static constexpr float special[] = {
            0,
            -0.0F,
            0,
            -0.0F,
            1,
            -1,
            2,
            -2,
            0.5F,
            Limits::infinity(),
            1,
            -1,
            1,
            Limits::max(),
            -Limits::infinity(),
            0,
            1e-30F,
            -1e-30F,
            Limits::min(),
            Limits::quiet_NaN(),
            1e+20F,
            -1e-20F,
            0,
            1,
            Limits::denorm_min(),
        };
        return random() % 4 == 0 ? ordinary.next() : special[random() % std::size(special)];
    };
    return {next, false};
}

Trial::Trial(const GraphicsExport &item, const TrialLayout &layout)
    : export_(item), layout_(layout), memory_(item.parameters.size()) {
    for (std::size_t index = 0; index < memory_.size(); ++index) {
        const GraphicsParameter &parameter = item.parameters[index];
        if (parameter.isPointer() && !(parameter.mayBeNull && layout.hasNulls)) {
            placeSeparately(index);
        }
    }
    if (layout.sharedSource >= 0) {
        for (std::size_t index = 0; index < memory_.size(); ++index) {
            if (item.parameters[index].text == "float *dst") {
                memory_[index] = memory_[layout.sharedSource];
                memory_[index].address += layout.sharedOffset * static_cast<std::ptrdiff_t>(sizeof(float));
            }
        }
    }
}

void Trial::placeSeparately(std::size_t index) {
    const GraphicsParameter &parameter = export_.parameters[index];
    const int stride = parameter.isWritten() ? layout_.dstStride : layout_.srcStride;
    const int steps = parameter.isArray ? std::max(layout_.count - 1, 0) : 0;
    const std::ptrdiff_t size = parameter.elements * static_cast<std::ptrdiff_t>(sizeof(float));
    const std::ptrdiff_t extent = size + std::abs(static_cast<std::ptrdiff_t>(stride)) * steps;
    const std::ptrdiff_t first = stride < 0 ? extent - size : 0; // of the first vector, when they go downwards

    Memory &memory = memory_[index];
    memory.arena = Arena::acquire(static_cast<std::size_t>(extent) + 1024);
    std::byte *lowest = memory.arena->begin();
    if (layout_.place == Place::Back) {
        lowest = memory.arena->end() - extent;
    } else if (layout_.place == Place::Middle) {
        lowest += 256 + layout_.shift * static_cast<std::ptrdiff_t>(sizeof(float));
    }
    memory.address = lowest + first;
}

void Trial::fill(const Values &values) {
    arguments_.clear();
    for (const Memory &memory : memory_) {
        if (memory.arena) {
            memory.arena->fillWithCanaries(ElementType::Float32);
        }
    }
    int strides = 0;
    for (std::size_t index = 0; index < memory_.size(); ++index) {
        const GraphicsParameter &parameter = export_.parameters[index];
        if (parameter.isPointer()) {
            const std::ptrdiff_t stride = parameter.isArray ? layout_.srcStride : 0;
            const int vectors = parameter.isArray ? layout_.count : 1;
            for (int k = 0; k < vectors && !parameter.isWritten(); ++k) {
                for (int i = 0; i < parameter.elements; ++i) {
                    const float value = values.next();
                    std::memcpy(memory_[index].address + k * stride + i * sizeof value, &value, sizeof value);
                }
            }
            arguments_.emplace_back(static_cast<const void *>(memory_[index].address));
        } else if (parameter.isCount()) {
            arguments_.emplace_back(layout_.count);
        } else if (parameter.text.starts_with("int ")) {
            arguments_.emplace_back(strides++ == 0 ? layout_.srcStride : layout_.dstStride);
        } else {
            arguments_.emplace_back(values.next());
        }
    }
}

std::vector<std::vector<std::byte>> Trial::contents() const {
    std::vector<std::vector<std::byte>> all;
    for (const Memory &memory : memory_) {
        all.emplace_back();
        if (memory.arena) {
            all.back().assign(memory.arena->begin(), memory.arena->end());
        }
    }
    return all;
}

void Trial::restore(const std::vector<std::vector<std::byte>> &before) {
    for (std::size_t index = 0; index < memory_.size(); ++index) {
        if (memory_[index].arena) {
            std::memcpy(memory_[index].arena->begin(), before[index].data(), before[index].size());
        }
    }
}

void Trial::run(const Values &values, Report &report) {
    if (report.isFull()) {
        return;
    }
    report.countCase();
    fill(values);
    const std::vector<std::vector<std::byte>> before = contents();
    const unsigned environment = _mm_getcsr();
    _mm_setcsr(environment & ~exceptionFlags);
    const LxpStatus expected = export_.reference(arguments_);
    const unsigned expectedFlags = _mm_getcsr();
    for (const Memory &memory : memory_) {
        if (memory.arena) {
            memory.arena->expectUnchanged();
        }
    }
    restore(before);

    _mm_setcsr(environment & ~exceptionFlags);
    const LxpStatus status = export_.function(arguments_);
    const unsigned flags = _mm_getcsr();
    _mm_setcsr(environment);

    std::string complaint = findDifference(before);
    if (status != expected) {
        complaint += " status " + std::to_string(status) + ", expected " + std::to_string(expected);
    }
    if ((flags & ~exceptionFlags) != (environment & ~exceptionFlags)) {
        complaint += " the floating-point environment was changed";
    }
    // What stands between vectors is signalling: arithmetic with it would show here. (With special values the elements
    // of whole registers that no result needs show as well.)
    if (values.areOrdinary && (flags & invalidFlag) > (expectedFlags & invalidFlag)) {
        complaint += " something was computed that is no part of the formula";
    }
    if (!complaint.empty()) {
        report.complain(text() + complaint);
    }
}

/// Any NaN will do where the reference wrote one: which of two payloads survives is left to the processor.
std::string Trial::findDifference(const std::vector<std::vector<std::byte>> &before) const {
    std::ostringstream difference;
    for (std::size_t index = 0; index < memory_.size(); ++index) {
        const Memory &memory = memory_[index];
        const std::byte *at = memory.arena ? memory.arena->findDifference(memory.arena->begin()) : nullptr;
        while (memory.arena && at != memory.arena->end()) {
            const std::ptrdiff_t offset = (at - memory.arena->begin()) / 4 * 4;
            const std::byte *const word = memory.arena->begin() + offset;
            const std::byte *const wanted = memory.arena->expected(word);
            // In a source that is the destination a NaN may have been overwritten by one of the same bits.
            const bool isWritten =
                layout_.sharedSource >= 0 || std::memcmp(wanted, before[index].data() + offset, 4) != 0;
            if (!isWritten || !std::isnan(floatAt(word)) || !std::isnan(floatAt(wanted))) {
                difference << " " << export_.parameters[index].text << ", element " << (word - memory.address) / 4
                           << ": " << std::hexfloat << floatAt(word) << ", expected " << floatAt(wanted);
                return difference.str();
            }
            at = memory.arena->findDifference(word + 4);
        }
    }
    return "";
}

std::string Trial::text() const {
    std::ostringstream text;
    text << export_.name << " count " << layout_.count << " strides " << layout_.srcStride << " " << layout_.dstStride
         << " place " << static_cast<int>(layout_.place) << " shift " << layout_.shift << " destination "
         << layout_.sharedSource << "+" << layout_.sharedOffset << ":" << std::hexfloat;
    for (std::size_t index = 0; index < memory_.size(); ++index) {
        const GraphicsParameter &parameter = export_.parameters[index];
        if (const float *scalar = std::get_if<float>(&arguments_[index])) {
            text << " " << parameter.text << " = " << *scalar;
        }
    }
    return text.str();
}

} // namespace lxpm::test
