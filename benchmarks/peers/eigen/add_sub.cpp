// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "blocks.h"
#include "orders.h"
#include "peers/eigen/families.h"
#include "peers/eigen/operands.h"

namespace lxpm::bench::eigen {

namespace {

struct Add {
    auto operator()(const auto &first, const auto &second) const { return first + second; }
};
struct Sub {
    auto operator()(const auto &first, const auto &second) const { return first - second; }
};

template <class Operation, class Object, class First, class Second>
void run(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        const First first(operands.src1);
        const Second second(operands.src2);
        auto *dst = static_cast<typename Object::Scalar *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            Eigen::Map<Object>(dst + k * Object::SizeAtCompileTime) = Operation()(first.at(k), second.at(k));
        }
    });
}

template <class Object, class First, class Second>
void addBoth(PeerTable &table, const std::string &codeAndType, const std::string &size) {
    table.push_back({"Add_" + codeAndType + "/" + size, run<Add, Object, First, Second>});
    table.push_back({"Sub_" + codeAndType + "/" + size, run<Sub, Object, First, Second>});
}

template <class T, int n>
void addOrder(PeerTable &table, const std::string &type) {
    const std::string len = std::to_string(n);
    const std::string order = len + "x" + len;

    using M = Matrix<T, n>;
    addBoth<M, Array<M>, Array<M>>(table, "mama_" + type, order);
    addBoth<M, Array<M>, Single<M>>(table, "mam_" + type, order);
    addBoth<M, TransposedArray<M>, Single<M>>(table, "tam_" + type, order);

    using V = Vector<T, n>;
    addBoth<V, Array<V>, Array<V>>(table, "vava_" + type, len);
    addBoth<V, Array<V>, Single<V>>(table, "vav_" + type, len);
    addBoth<V, Array<V>, ConstantArray<V>>(table, "vaca_" + type, len);
    addBoth<V, Array<V>, Constant<V>>(table, "vac_" + type, len);
}

template <class T>
void addType(PeerTable &table, const std::string &type) {
    forEach<elementwiseOrders>([&](auto n) { addOrder<T, n>(table, type); });
}

} // namespace

void addAddSub(PeerTable &table) {
    addType<float>(table, "32f");
    addType<double>(table, "64f");
}

} // namespace lxpm::bench::eigen
