// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "blocks.h"
#include "orders.h"
#include "peers/eigen/families.h"
#include "peers/eigen/operands.h"

#include <Eigen/Geometry>

namespace lxpm::bench::eigen {

namespace {

struct DotProduct {
    auto operator()(const auto &first, const auto &second) const { return first.dot(second); }
};
struct Norm {
    auto operator()(const auto &first, const auto &) const { return first.norm(); }
};
struct Trace {
    auto operator()(const auto &first, const auto &) const { return first.trace(); }
};

// One scalar for each object.
template <class Operation, class Object, class First, class Second>
void runToScalars(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        const First first(operands.src1);
        const Second second(operands.src2);
        auto *dst = static_cast<typename Object::Scalar *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            dst[k] = Operation()(first.at(k), second.at(k));
        }
    });
}

template <class Object, class First, class Second>
void runCross(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        const First first(operands.src1);
        const Second second(operands.src2);
        auto *dst = static_cast<typename Object::Scalar *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            Eigen::Map<Object>(dst + k * 3) = first.at(k).cross(second.at(k));
        }
    });
}

// Sizes of matrices of any order are known at run time.
template <class Object>
void runTranspose(const PeerOperands &operands, long order) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        using Scalar = typename Object::Scalar;
        const auto *src = static_cast<const Scalar *>(operands.src1);
        auto *dst = static_cast<Scalar *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            Eigen::Map<Object>(dst + k * order * order, order, order) =
                Eigen::Map<const Object>(src + k * order * order, order, order).transpose();
        }
    });
}

template <class T, int n>
void addLength(PeerTable &table, const std::string &type) {
    using V = Vector<T, n>;
    const std::string size = "_" + type + "/" + std::to_string(n);
    table.push_back({"DotProduct_vava" + size, runToScalars<DotProduct, V, Array<V>, Array<V>>});
    table.push_back({"DotProduct_vav" + size, runToScalars<DotProduct, V, Array<V>, Single<V>>});
    table.push_back({"L2Norm_va" + size, runToScalars<Norm, V, Array<V>, Single<V>>});
}

template <class T, int n>
void addOrder(PeerTable &table, const std::string &type) {
    using M = Matrix<T, n>;
    const std::string size = "_" + type + "/" + std::to_string(n) + "x" + std::to_string(n);
    table.push_back({"FrobNorm_ma" + size, runToScalars<Norm, M, Array<M>, Array<M>>});
    table.push_back({"Trace_ma" + size, runToScalars<Trace, M, Array<M>, Array<M>>});
    table.push_back({"Transpose_ma" + size, [](const PeerOperands &operands) { runTranspose<M>(operands, n); }});
}

template <class T, int n>
void addLarge(PeerTable &table, const std::string &type) {
    using M = Matrix<T, Eigen::Dynamic>;
    const std::string size = "_" + type + "/" + std::to_string(n) + "x" + std::to_string(n);
    table.push_back({"Transpose_m" + size, [](const PeerOperands &operands) { runTranspose<M>(operands, n); }});
}

template <class T>
void addType(PeerTable &table, const std::string &type) {
    forEach<vectorLengths>([&](auto n) { addLength<T, n>(table, type); });
    forEach<reductionOrders>([&](auto n) { addOrder<T, n>(table, type); });
    addLarge<T, 1000>(table, type);
    addLarge<T, 2048>(table, type);
    using V = Vector<T, 3>;
    table.push_back({"CrossProduct_vava_" + type + "/3", runCross<V, Array<V>, Array<V>>});
    table.push_back({"CrossProduct_vav_" + type + "/3", runCross<V, Array<V>, Single<V>>});
}

} // namespace

void addReductions(PeerTable &table) {
    addType<float>(table, "32f");
    addType<double>(table, "64f");
}

} // namespace lxpm::bench::eigen
