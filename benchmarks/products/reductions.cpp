// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "case.h"
#include "operands.h"
#include "orders.h"

#include <algorithm>
#include <initializer_list>
#include <lxpm/reductions.h>
#include <tuple>

namespace lxpm::bench {

namespace {

// A function on dense arrays: objects one behind the other, matrices by rows.
template <class T>
using OnArrays = LxpStatus (*)(const T *src1, const T *src2, T *dst, int n, int count);

// The elements that one object reads and writes.
struct Elements {
    int read;
    int written;
};

enum class Results { Equal, Rounded };

// What a case is called, and the bytes of one object.
struct Measured {
    std::string group;
    std::string name; // without the type
    std::string layout;
    std::string size;
    bool dense;
    std::size_t read;
    std::size_t written;
    Results results;
};

// As many objects as the setting has memory for. Prepare: prepare(memory, count) gives the call.
template <class T>
void appendCase(std::vector<Case> &cases, const Setting &setting, const Measured &measured, auto prepare) {
    const auto count = static_cast<int>(std::max<std::size_t>(1, setting.bytes / (measured.read + measured.written)));
    cases.push_back(
        {.group = setting.name + "-" + measured.group,
         .name = measured.name + (sizeof(T) == sizeof(float) ? "_32f" : "_64f") + measured.layout + "/" + measured.size,
         .dense = measured.dense,
         .setting = setting,
         .objects = count,
         .bytesRead = count * measured.read,
         .bytesWritten = count * measured.written,
         .prepare = [=](const Memory &memory) -> Call { return prepare(memory, count); },
         .roundedElementSize = measured.results == Results::Rounded ? sizeof(T) : 0});
}

template <class T>
void append(std::vector<Case> &cases, const Setting &setting, const std::string &code, const std::string &name,
            const std::string &size, int n, Elements elements, Results results, OnArrays<T> function) {
    const Measured measured = {.group = code,
                               .name = name + "_" + code,
                               .layout = "",
                               .size = size,
                               .dense = true,
                               .read = elements.read * sizeof(T),
                               .written = elements.written * sizeof(T),
                               .results = results};
    appendCase<T>(cases, setting, measured, [=](const Memory &memory, int count) -> Call {
        const auto *src1 = static_cast<const T *>(memory.source1());
        const auto *src2 = static_cast<const T *>(memory.source2());
        auto *dst = static_cast<T *>(memory.result());
        return [=] { return function(src1, src2, dst, n, count); };
    });
}

std::string square(int n) {
    return std::to_string(n) + "x" + std::to_string(n);
}

// The export of type T.
template <class T>
auto exportOf(auto *in32f, auto *in64f) {
    if constexpr (sizeof(T) == sizeof(float)) {
        return in32f;
    } else {
        return in64f;
    }
}

template <class T>
void appendType(std::vector<Case> &cases) {
    constexpr int size = sizeof(T);
    const Setting &cache = cacheSetting();
    for (const int n : vectorLengths) {
        const std::string len = std::to_string(n);
        append<T>(cases, cache, "vava", "DotProduct", len, n, {2 * n, 1}, Results::Rounded,
                  [](const T *a, const T *b, T *dst, int length, int count) {
                      return exportOf<T>(lxpmDotProduct_vava_32f, lxpmDotProduct_vava_64f)(
                          a, length * size, size, b, length * size, size, dst, length, count);
                  });
        append<T>(cases, cache, "vav", "DotProduct", len, n, {n, 1}, Results::Rounded,
                  [](const T *a, const T *b, T *dst, int length, int count) {
                      return exportOf<T>(lxpmDotProduct_vav_32f, lxpmDotProduct_vav_64f)(a, length * size, size, b,
                                                                                         size, dst, length, count);
                  });
        append<T>(cases, cache, "va", "L2Norm", len, n, {n, 1}, Results::Rounded,
                  [](const T *a, const T *, T *dst, int length, int count) {
                      return exportOf<T>(lxpmL2Norm_va_32f, lxpmL2Norm_va_64f)(a, length * size, size, dst, length,
                                                                               count);
                  });
    }
    append<T>(cases, cache, "vava", "CrossProduct", "3", 3, {6, 3}, Results::Rounded,
              [](const T *a, const T *b, T *dst, int, int count) {
                  return exportOf<T>(lxpmCrossProduct_vava_32f, lxpmCrossProduct_vava_64f)(
                      a, 3 * size, size, b, 3 * size, size, dst, 3 * size, size, count);
              });
    append<T>(cases, cache, "vav", "CrossProduct", "3", 3, {3, 3}, Results::Rounded,
              [](const T *a, const T *b, T *dst, int, int count) {
                  return exportOf<T>(lxpmCrossProduct_vav_32f, lxpmCrossProduct_vav_64f)(a, 3 * size, size, b, size,
                                                                                         dst, 3 * size, size, count);
              });
    for (const int n : reductionOrders) {
        append<T>(cases, cache, "ma", "FrobNorm", square(n), n, {n * n, 1}, Results::Rounded,
                  [](const T *a, const T *, T *dst, int order, int count) {
                      return exportOf<T>(lxpmFrobNorm_ma_32f, lxpmFrobNorm_ma_64f)(
                          a, order * order * size, order * size, size, order, order, dst, count);
                  });
        append<T>(cases, cache, "ma", "Trace", square(n), n, {n * n, 1}, Results::Rounded,
                  [](const T *a, const T *, T *dst, int order, int count) {
                      return exportOf<T>(lxpmTrace_ma_32f, lxpmTrace_ma_64f)(a, order * order * size, order * size,
                                                                             size, order, dst, count);
                  });
        append<T>(cases, cache, "ma", "Transpose", square(n), n, {n * n, n * n}, Results::Equal,
                  [](const T *a, const T *, T *dst, int order, int count) {
                      return exportOf<T>(lxpmTranspose_ma_32f, lxpmTranspose_ma_64f)(
                          a, order * order * size, order * size, size, order, order, dst, order * order * size,
                          order * size, size, count);
                  });
    }
    // One matrix: as many as fit are transposed one after the other.
    for (const int n : {1000, 2048}) {
        append<T>(cases, memorySetting(), "m", "Transpose", square(n), n, {n * n, n * n}, Results::Equal,
                  [](const T *a, const T *, T *dst, int order, int count) {
                      LxpStatus status = lxpStatusOk;
                      for (std::ptrdiff_t k = 0; k < count && status == lxpStatusOk; ++k) {
                          const std::ptrdiff_t first = k * order * order;
                          status = exportOf<T>(lxpmTranspose_m_32f, lxpmTranspose_m_64f)(
                              a + first, order * size, size, order, order, dst + first, order * size, size);
                      }
                      return status;
                  });
    }
}

// A function of arrays behind element pointers. Call: call(src1, src2, dst, count) with a tuple of arguments for each
// operand.
template <class T, Form form, class Source, class Result>
void appendPointed(std::vector<Case> &cases, const std::string &group, const std::string &name, Size size, int sources,
                   auto call) {
    const Measured measured = {.group = group,
                               .name = name,
                               .layout = "_P",
                               .size = size.rows > 1 ? square(size.columns) : std::to_string(size.columns),
                               .dense = false,
                               .read = sources * footprint<Source, T>(form, size),
                               .written = footprint<Result, T>(form, size),
                               .results = Results::Rounded};
    appendCase<T>(cases, cacheSetting(), measured, [=](const Memory &memory, int count) -> Call {
        const Operand<Source, const T, form> src1(static_cast<const T *>(memory.source1()), size, count);
        const Operand<Source, const T, form> src2(static_cast<const T *>(memory.source2()), size, count);
        const Operand<Result, T, form> dst(static_cast<T *>(memory.result()), size, count);
        return [=] { return call(src1.arguments(), src2.arguments(), dst.arguments(), count); };
    });
}

template <class T, Form form>
void appendForm(std::vector<Case> &cases, const std::string &group) {
    using namespace codes;
    appendPointed<T, form, va, va>(
        cases, group, "CrossProduct_vava", {1, 3}, 2, [](auto src1, auto src2, auto dst, int count) {
            return std::apply(exportOf<T>(lxpmCrossProduct_vava_32f_P, lxpmCrossProduct_vava_64f_P),
                              std::tuple_cat(src1, src2, dst, std::tuple(count)));
        });
    for (const int n : {3, 4, 6}) {
        appendPointed<T, form, va, ca>(
            cases, group, "DotProduct_vava", {1, n}, 2, [n](auto src1, auto src2, auto dst, int count) {
                return std::apply(exportOf<T>(lxpmDotProduct_vava_32f_P, lxpmDotProduct_vava_64f_P),
                                  std::tuple_cat(src1, src2, std::tuple(std::get<0>(dst), n, count)));
            });
        appendPointed<T, form, ma, ca>(
            cases, group, "FrobNorm_ma", {n, n}, 1, [n](auto src, auto, auto dst, int count) {
                return std::apply(exportOf<T>(lxpmFrobNorm_ma_32f_P, lxpmFrobNorm_ma_64f_P),
                                  std::tuple_cat(src, std::tuple(n, n, std::get<0>(dst), count)));
            });
        appendPointed<T, form, ma, ma>(
            cases, group, "Transpose_ma", {n, n}, 1, [n](auto src, auto, auto dst, int count) {
                return std::apply(exportOf<T>(lxpmTranspose_ma_32f_P, lxpmTranspose_ma_64f_P),
                                  std::tuple_cat(src, std::tuple(n, n), dst, std::tuple(count)));
            });
    }
}

} // namespace

void appendReductions(std::vector<Case> &cases) {
    appendType<float>(cases);
    appendType<double>(cases);
    appendForm<float, Form::elementPointers>(cases, "elementPointers");
    appendForm<double, Form::elementPointers>(cases, "elementPointers");
    appendForm<float, Form::structureOfArrays>(cases, "structureOfArrays");
    appendForm<double, Form::structureOfArrays>(cases, "structureOfArrays");
}

} // namespace lxpm::bench
