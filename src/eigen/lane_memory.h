// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Objects of an array go into registers, one in each lane, and come back. Rows whose elements touch are turned in
// registers, four elements of all objects at a time; others are picked one by one.

#include "runtime/addresses.h"
#include "runtime/lanes.h"
#include "runtime/twice.h"

#include <array>
#include <cstddef>

namespace lxpm {

template <class T>
class LaneMemory {
public:
    static constexpr int lanes = fullLanes<T>;
    using L = Lanes<T, lanes>;

    // Objects from `object` on, row by row.
    template <class V>
    static void load(const Addresses<const T> &source, std::ptrdiff_t object, int rows, int columns, V *to) {
        for (int part = 0; part < registers<V>; ++part) {
            loadPart(source, object + part * lanes, rows, columns, partsOf(to) + part, registers<V>);
        }
    }

    // Element (i, j) of each object comes from elements[i * rowStep + j * columnStep].
    template <class V>
    static void store(const V *elements, std::ptrdiff_t rowStep, std::ptrdiff_t columnStep, const Addresses<T> &to,
                      std::ptrdiff_t object, int rows, int columns) {
        for (int part = 0; part < registers<V>; ++part) {
            storePart(partsOf(elements) + part, rowStep * registers<V>, columnStep * registers<V>, to,
                      object + part * lanes, rows, columns);
        }
    }

    // A vector of each object; the vectors of successive objects touch.
    template <class V>
    static void storeDense(const V *elements, T *to, int length) {
        for (int part = 0; part < registers<V>; ++part) {
            Pointers<T> at;
            for (int lane = 0; lane < lanes; ++lane) {
                at[lane] = to + static_cast<std::ptrdiff_t>(part * lanes + lane) * length;
            }
            storeRow(partsOf(elements) + part, registers<V>, at, length);
        }
    }

private:
    template <class Element>
    using Pointers = std::array<Element *, lanes>;

    template <class V>
    static constexpr int registers = sizeof(V) / sizeof(L);

    static L *partsOf(L *elements) { return elements; }
    static const L *partsOf(const L *elements) { return elements; }
    template <class V>
    static L *partsOf(Twice<V> *elements) {
        return partsOf(&elements->low);
    }
    template <class V>
    static const L *partsOf(const Twice<V> *elements) {
        return partsOf(&elements->low);
    }

    static void loadPart(const Addresses<const T> &source, std::ptrdiff_t object, int rows, int columns, L *to,
                         std::ptrdiff_t step) {
        if (!source.rowsTouch()) {
            for (int i = 0; i < rows; ++i) {
                for (int j = 0; j < columns; ++j) {
                    *to = L::of([&](auto lane) { return *source.at(object + lane, i, j); });
                    to += step;
                }
            }
            return;
        }
        Pointers<const T> from;
        for (int lane = 0; lane < lanes; ++lane) {
            from[lane] = source.at(object + lane, 0, 0);
        }
        if (source.step[1] == columns * static_cast<std::ptrdiff_t>(sizeof(T))) {
            columns *= rows; // one long row
            rows = 1;
        }
        for (int i = 0; i < rows; ++i) {
            loadRow(from, columns, to, step);
            to += columns * step;
            for (const T *&row : from) {
                row = shifted(row, source.step[1]);
            }
        }
    }

    static void storePart(const L *elements, std::ptrdiff_t rowStep, std::ptrdiff_t columnStep, const Addresses<T> &to,
                          std::ptrdiff_t object, int rows, int columns) {
        if (!to.rowsTouch()) {
            for (int i = 0; i < rows; ++i) {
                for (int j = 0; j < columns; ++j) {
                    const L &element = elements[i * rowStep + j * columnStep];
                    for (int lane = 0; lane < lanes; ++lane) {
                        *to.at(object + lane, i, j) = element.vector[lane];
                    }
                }
            }
            return;
        }
        Pointers<T> at;
        for (int lane = 0; lane < lanes; ++lane) {
            at[lane] = to.at(object + lane, 0, 0);
        }
        for (int i = 0; i < rows; ++i) {
            storeRow(elements + i * rowStep, columnStep, at, columns);
            for (T *&row : at) {
                row = shifted(row, to.step[1]);
            }
        }
    }

    static void loadRow(const Pointers<const T> &from, int length, L *to, std::ptrdiff_t step) {
        int j = 0;
        for (; j + 4 <= length; j += 4) {
            loadSome<4>(from, j, to, step);
        }
        switch (length - j) {
        case 1:
            return loadSome<1>(from, j, to, step);
        case 2:
            return loadSome<2>(from, j, to, step);
        case 3:
            return loadSome<3>(from, j, to, step);
        default:
            return;
        }
    }

    static void storeRow(const L *elements, std::ptrdiff_t step, const Pointers<T> &to, int length) {
        int j = 0;
        for (; j + 4 <= length; j += 4) {
            storeSome<4>(elements + j * step, step, to, j);
        }
        switch (length - j) {
        case 1:
            return storeSome<1>(elements + j * step, step, to, j);
        case 2:
            return storeSome<2>(elements + j * step, step, to, j);
        case 3:
            return storeSome<3>(elements + j * step, step, to, j);
        default:
            return;
        }
    }

    template <int K>
    static void loadSome(const Pointers<const T> &from, int first, L *to, std::ptrdiff_t step) {
        std::array<L, 4> rows;
        for (int i = 0; i < 4; ++i) {
            if constexpr (lanes == 8) {
                rows[i] = joined(loadFirst<K>(from[i] + first), loadFirst<K>(from[i + 4] + first));
            } else {
                rows[i] = loadFirst<K>(from[i] + first);
            }
        }
        turn(rows);
        for (int i = 0; i < K; ++i) {
            to[(first + i) * step] = rows[i];
        }
    }

    template <int K>
    static void storeSome(const L *elements, std::ptrdiff_t step, const Pointers<T> &to, int first) {
        std::array<L, 4> rows = {};
        for (int i = 0; i < K; ++i) {
            rows[i] = elements[i * step];
        }
        turn(rows);
        for (int i = 0; i < 4; ++i) {
            if constexpr (lanes == 8) {
                storeFirst<K>(to[i] + first, lowHalf(rows[i]));
                storeFirst<K>(to[i + 4] + first, highHalf(rows[i]));
            } else {
                storeFirst<K>(to[i] + first, rows[i]);
            }
        }
    }

    static void turn(std::array<L, 4> &rows) {
        if constexpr (lanes == 8) {
            transposeHalves(rows);
        } else {
            transpose(rows);
        }
    }
};

} // namespace lxpm
