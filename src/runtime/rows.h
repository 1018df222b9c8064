// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Tables over the members of a family: what holds for which operand codes, layouts and element types. The first row
// that fits a member is the member's, so exceptions stand above the rule.

#include "runtime/operand.h"

#include <cstddef>
#include <iterator>

namespace lxpm {

// Layouts and element types, as sets.
enum class Layouts : unsigned { S = 1, L = 2, P = 4, SL = S | L, LP = L | P, All = S | L | P };
enum class Types : unsigned { F32 = 1, F64 = 2, Both = F32 | F64 };

constexpr bool includes(Layouts set, Layout layout) {
    return (static_cast<unsigned>(set) >> static_cast<unsigned>(layout) & 1) != 0;
}

constexpr bool includes(Types set, std::size_t elementSize) {
    return (static_cast<unsigned>(set) & (elementSize == 4 ? 1U : 2U)) != 0;
}

// Operand codes, as a list of words.
class Codes {
public:
    consteval Codes() = default;

    template <std::size_t Size>
    consteval Codes(const char (&list)[Size]) {
        int letter = 0;
        for (std::size_t i = 0; i + 1 < Size; ++i) {
            if (list[i] == ' ') {
                ++last;
                letter = 0;
            } else {
                code[last].text[letter++] = list[i];
            }
        }
    }

    // No list at all stands for all codes.
    constexpr bool includes(const Code &member) const {
        bool any = code[0] == Code();
        for (int i = 0; i <= last; ++i) {
            any |= code[i] == member;
        }
        return any;
    }

private:
    static constexpr int most = 32;

    Code code[most] = {};
    int last = 0;
};

inline constexpr Codes allCodes;

template <class Value>
struct Row {
    Codes codes;
    Layouts layouts;
    Types types;
    Value value;
};

// Never defined: a member without a row does not compile, and this name is in the message.
void noRowOfTheTableFitsTheMember();

template <class Member, class Table>
consteval auto findRow(const Table &table) {
    for (const auto &row : table) {
        if (row.codes.includes(Member::code) && includes(row.layouts, Member::layout) &&
            includes(row.types, sizeof(typename Member::Element))) {
            return row.value;
        }
    }
    noRowOfTheTableFitsTheMember();
    return std::begin(table)->value;
}

// The value of a member's row.
template <class Member, const auto &table>
inline constexpr auto rowOf = findRow<Member>(table);

} // namespace lxpm
