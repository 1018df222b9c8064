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

void printBounds(std::ostream &out, std::string_view when, const Bounds &bounds) {
    out << std::left << std::setw(17) << when << std::right;
    for (int j = 0; j < 3; ++j) {
        out << "   "
            << "xyz"[j] << std::setw(9) << fixed(bounds.lower[j], 4) << " to" << std::setw(8)
            << fixed(bounds.upper[j], 4);
    }
    out << '\n';
}

void printTable(std::ostream &out, const std::vector<Measurement> &measurements) {
    const auto row = [&out](std::string_view step, std::string_view function, std::string_view objects,
                            std::string_view time, std::string_view perObject, std::string_view deviation,
                            std::string_view limit) {
        out << std::left << std::setw(27) << step << std::setw(33) << function << std::right << std::setw(8) << objects
            << std::setw(9) << time << std::setw(11) << perObject << std::setw(11) << deviation << std::setw(8) << limit
            << '\n';
    };
    row("step", "function", "objects", "time/us", "ns/object", "deviation", "limit");
    for (const Measurement &m : measurements) {
        row(m.step, m.function, grouped(m.objects), fixed(m.fastest.count() * 1e6, 1),
            fixed(m.fastest.count() * 1e9 / static_cast<double>(m.objects), 2), fixed(m.deviation, 2),
            fixed(m.limit, 1));
    }
    out << "\nDeviations from a plain computation in double precision are counted in roundings, 2^-24 of the "
           "magnitude\n"
           "of a result's terms; the limit is the number of roundings on the way to it.\n";
}

} // namespace lxpm::mesh
