// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The small texts in which the kernel tells about itself. Everything here works without allocating and never fails:
// what cannot be read is empty, what is no number is 0.

#include <span>
#include <string_view>

namespace lxpm {

// The contents of a file, as far as they fit into the buffer.
std::string_view readFile(const char *name, std::span<char> buffer) noexcept;

// The decimal number that a text starts with, and the text behind it.
struct LeadingNumber {
    long long value;
    std::string_view rest;
};

LeadingNumber leadingNumber(std::string_view text) noexcept;

// Takes what stands in front of the first separator off the text, and the separator with it; all of the text when there
// is none.
std::string_view takeUpTo(char separator, std::string_view &text) noexcept;

} // namespace lxpm
