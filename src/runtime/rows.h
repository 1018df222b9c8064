// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Tables over the members of a family: what holds for which operand codes, layouts and element types. The first row
// that fits a member is the member's, so exceptions stand above the rule.

#include "runtime/operand.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

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
struct Codes {
    std::string_view words; // none: all codes

    consteval Codes() = default;
    consteval Codes(const char *list) : words(list) {}

    constexpr bool includes(Code code) const {
        for (std::size_t at = 0; at < words.size(); at = words.find(' ', at) + 1) {
            const std::size_t end = std::min(words.find(' ', at), words.size());
            if (words.substr(at, end - at) == code.word()) {
                return true;
            }
            if (end == words.size()) {
                return false;
            }
        }
        return words.empty();
    }
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
