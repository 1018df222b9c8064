// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "sums_around_vertices.h"
#include "real.h"
#include "strides.h"

#include <utility>

namespace lxpm::mesh {

namespace {

struct Corner {
    int triangle;
    int place; // of the corner in its triangle
};

// The same sums, as calls that add arrays through pointers. A call must not have a destination twice, so the triangles
// around a vertex take turns: the first call copies the first one of each vertex, the next one adds the second one
// where there is one, and so on.
class SumsInTurns {
public:
    // term(corner) and sum(vertex) say where the vectors stand.
    template <class Term, class Sum>
    SumsInTurns(const Surface &surface, int length, Term term, Sum sum) : length_(length) {
        std::vector<std::size_t> turnsOfVertices(surface.vertices.size());
        for (std::size_t k = 0; k < surface.triangles.size(); ++k) {
            for (int c = 0; c < 3; ++c) {
                const int vertex = surface.triangles[k][c];
                const std::size_t turn = turnsOfVertices[vertex]++;
                if (turn == turns_.size()) {
                    turns_.emplace_back();
                }
                turns_[turn].terms.push_back(term(Corner{static_cast<int>(k), c}));
                turns_[turn].sums.push_back(sum(vertex));
            }
        }
    }

    LxpStatus compute() const {
        const Turn &first = turns_.front();
        LxpStatus status = lxpmCopy_va_32f_LL(first.terms.data(), 0, floatStride, //
                                              first.sums.data(), 0, floatStride, length_, countOf(first.sums));
        for (std::size_t i = 1; i < turns_.size() && status == lxpStatusOk; ++i) {
            const auto &[terms, sums] = turns_[i];
            status = lxpmAdd_vava_32f_L(sums.data(), 0, floatStride,  //
                                        terms.data(), 0, floatStride, //
                                        sums.data(), 0, floatStride, length_, countOf(sums));
        }
        return status;
    }

    // A copy does not round.
    double roundings() const { return static_cast<double>(turns_.size()) - 1; }

private:
    struct Turn {
        std::vector<const float *> terms;
        std::vector<float *> sums;
    };

    int length_;
    std::vector<Turn> turns_;
};

// term(corner) and sum(vertex) as above, for one element.
template <class Term, class Sum>
void compareSums(const Surface &surface, Term term, Sum sum, Deviation &deviation) {
    std::vector<double> exact(surface.vertices.size()), magnitude(surface.vertices.size());
    for (std::size_t k = 0; k < surface.triangles.size(); ++k) {
        for (int c = 0; c < 3; ++c) {
            const double value = *term(Corner{static_cast<int>(k), c});
            exact[surface.triangles[k][c]] += value;
            magnitude[surface.triangles[k][c]] += std::abs(value);
        }
    }
    for (std::size_t k = 0; k < exact.size(); ++k) {
        deviation.add(*sum(static_cast<int>(k)), exact[k], magnitude[k]);
    }
}

template <class Term, class Sum>
Step sumStep(Surface &surface, std::string_view name, int length, Term term, Sum sum) {
    SumsInTurns sums(surface, length, term, sum);
    const double limit = sums.roundings();
    return {
        .name = name,
        .function = "lxpmAdd_vava_32f_L",
        .objects = 3 * surface.triangles.size(),
        .compute = [sums = std::move(sums)] { return sums.compute(); },
        .limit = limit,
        .deviation =
            [&surface, length, term, sum] {
                Deviation deviation;
                for (int j = 0; j < length; ++j) {
                    compareSums(
                        surface, [&](Corner corner) { return term(corner) + j; },
                        [&](int vertex) { return sum(vertex) + j; }, deviation);
                }
                return deviation;
            },
    };
}

} // namespace

Step normalsAroundVertices(Surface &surface) {
    return sumStep(
        surface, "normals around vertices", 3,
        [&surface](Corner corner) -> const float * { return surface.packedNormals[corner.triangle].data(); },
        [&surface](int vertex) { return surface.normalSums[vertex].data(); });
}

Step areasAroundVertices(Surface &surface) {
    return sumStep(
        surface, "areas around vertices", 1,
        [&surface](Corner corner) -> const float * { return &surface.areas[corner.triangle]; },
        [&surface](int vertex) { return &surface.areaSums[vertex]; });
}

Step gradientsAroundVertices(Surface &surface) {
    return sumStep(
        surface, "gradients around vertices", 3,
        [&surface](Corner corner) -> const float * {
            return surface.areaGradients[corner.triangle][corner.place].data();
        },
        [&surface](int vertex) { return surface.gradientSums[vertex].data(); });
}

} // namespace lxpm::mesh
