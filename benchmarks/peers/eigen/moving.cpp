// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "blocks.h"
#include "orders.h"
#include "peers/eigen/families.h"
#include "peers/eigen/operands.h"

namespace lxpm::bench::eigen {

namespace {

template <class Object, class Source>
void copy(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        const Source source(operands.src1);
        auto *dst = static_cast<typename Object::Scalar *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            Eigen::Map<Object>(dst + k * Object::SizeAtCompileTime) = source.at(k);
        }
    });
}

template <class Object>
void loadIdentity(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        auto *dst = static_cast<typename Object::Scalar *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            Eigen::Map<Object>(dst + k * Object::SizeAtCompileTime).setIdentity();
        }
    });
}

// The constants of the cases.
template <class T>
constexpr T factor = 2;

struct ScaledSum {
    auto operator()(const auto &first, const auto &second, auto val) const { return val * first + second; }
};
struct LinearCombination {
    auto operator()(const auto &first, const auto &second, auto val) const { return val * first + val * second; }
};

template <class Operation, class Object, class Second>
void combine(const PeerOperands &operands) {
    using T = typename Object::Scalar;
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        const Array<Object> first(operands.src1);
        const Second second(operands.src2);
        auto *dst = static_cast<T *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            Eigen::Map<Object>(dst + k * Object::SizeAtCompileTime) = Operation()(first.at(k), second.at(k), factor<T>);
        }
    });
}

template <class T, int n>
void addOrder(PeerTable &table, const std::string &type) {
    const std::string len = std::to_string(n);
    const std::string order = len + "x" + len;

    using M = Matrix<T, n>;
    table.push_back({"Copy_ma_" + type + "_SS/" + order, copy<M, Array<M>>});
    table.push_back({"Extract_ma_" + type + "/" + order, copy<M, Array<M>>});
    table.push_back({"Extract_ta_" + type + "/" + order, copy<M, TransposedArray<M>>});
    table.push_back({"LoadIdentity_ma_" + type + "/" + order, loadIdentity<M>});

    using V = Vector<T, n>;
    table.push_back({"Saxpy_vava_" + type + "/" + len, combine<ScaledSum, V, Array<V>>});
    table.push_back({"Saxpy_vav_" + type + "/" + len, combine<ScaledSum, V, Single<V>>});
    table.push_back({"LComb_vava_" + type + "/" + len, combine<LinearCombination, V, Array<V>>});
}

template <class T>
void addType(PeerTable &table, const std::string &type) {
    forEach<elementwiseOrders>([&](auto n) { addOrder<T, n>(table, type); });
}

} // namespace

void addMoving(PeerTable &table) {
    addType<float>(table, "32f");
    addType<double>(table, "64f");
}

} // namespace lxpm::bench::eigen
