// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "mesh.h"

#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace lxpm::mesh {

using Seconds = std::chrono::duration<double>;

struct Measurement {
    std::string_view step;
    std::string_view function;
    std::size_t objects;
    Seconds fastest; // run
    Seconds all;     // runs together
    double deviation, limit;

    bool agrees() const { return deviation <= limit; }
};

void printBounds(std::ostream &out, std::string_view when, const Bounds &bounds);
void printTable(std::ostream &out, const std::vector<Measurement> &measurements);

// 34835 as 34,835.
std::string grouped(std::size_t number);

// 1.25 with one decimal as 1.2.
std::string fixed(double number, int decimals);

} // namespace lxpm::mesh
