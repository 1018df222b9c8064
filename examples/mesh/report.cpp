// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "report.h"

#include <iomanip>
#include <ostream>
#include <sstream>

namespace lxpm::mesh {

std::string grouped(std::size_t number) {
    std::string digits = std::to_string(number);
    for (std::size_t end = digits.size(); end > 3; end -= 3) {
        digits.insert(end - 3, 1, ',');
    }
    return digits;
}

std::string fixed(double number, int decimals) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(decimals) << number;
    return text.str();
}

void printTable(std::ostream &out, const std::vector<Measurement> &measurements) {
    Seconds inLibrary{};
    for (const Measurement &measurement : measurements) {
        inLibrary += measurement.time;
    }

    const auto row = [&out](std::string_view step, std::string_view function, std::string_view objects,
                            std::string_view time, std::string_view perObject, std::string_view share,
                            std::string_view check) {
        out << std::left << std::setw(30) << step << std::setw(24) << function << std::right << std::setw(9) << objects
            << std::setw(10) << time << std::setw(11) << perObject << std::setw(7) << share << "  " << check << '\n';
    };
    row("step", "function", "objects", "time/us", "ns/object", "share", "check");
    for (const Measurement &m : measurements) {
        row(m.step, m.function, grouped(m.objects), fixed(m.time.count() * 1e6, 1),
            fixed(m.time.count() * 1e9 / static_cast<double>(m.objects), 2), fixed(100 * m.time / inLibrary, 0) + " %",
            m.agrees ? "same bits" : "DIFFERS");
    }
}

} // namespace lxpm::mesh
