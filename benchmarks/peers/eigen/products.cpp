// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "blocks.h"
#include "orders.h"
#include "peers/eigen/families.h"
#include "peers/eigen/operands.h"

namespace lxpm::bench::eigen {

namespace {

template <class Object>
class TransposedSingle {
public:
    explicit TransposedSingle(const void *data) : object_(data) {}
    auto at(long k) const { return object_.at(k).transpose(); }

private:
    Single<Object> object_;
};

template <class Object, class First, class Second>
void run(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        const First first(operands.src1);
        const Second second(operands.src2);
        auto *dst = static_cast<typename Object::Scalar *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            Eigen::Map<Object>(dst + k * Object::SizeAtCompileTime).noalias() = first.at(k) * second.at(k);
        }
    });
}

template <class Object>
void runScaling(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        using T = typename Object::Scalar;
        const Array<Object> first(operands.src1);
        const T constant = *static_cast<const T *>(operands.src2);
        auto *dst = static_cast<T *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            Eigen::Map<Object>(dst + k * Object::SizeAtCompileTime) = constant * first.at(k);
        }
    });
}

// The vectors of an array are the columns of one matrix, which leaves the blocking to Eigen.
template <class T, int n>
void runOnColumns(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        using Columns = Eigen::Matrix<T, n, Eigen::Dynamic>;
        const Single<Matrix<T, n>> matrix(operands.src1);
        const auto *src = static_cast<const T *>(operands.src2);
        auto *dst = static_cast<T *>(operands.dst);
        Eigen::Map<Columns>(dst + begin * n, n, end - begin).noalias() =
            matrix.at(0) * Eigen::Map<const Columns>(src + begin * n, n, end - begin);
    });
}

template <class T, int n, class Addend>
void runSum(const PeerOperands &operands) {
    inBlocks(operands.count, operands.threads, [&](long begin, long end) {
        using V = Vector<T, n>;
        const Single<Matrix<T, n>> matrix(operands.src1);
        const Addend addend(static_cast<const T *>(operands.src1) + n * n);
        const Array<V> vector(operands.src2);
        auto *dst = static_cast<T *>(operands.dst);
        for (long k = begin; k < end; ++k) {
            Eigen::Map<V>(dst + k * n).noalias() = matrix.at(k) * vector.at(k) + addend.at(k);
        }
    });
}

template <class T, int n>
void addOrder(PeerTable &table, const std::string &type) {
    const std::string size = "_" + type + "/" + std::to_string(n) + "x" + std::to_string(n);

    using M = Matrix<T, n>;
    table.push_back({"Mul_mama" + size, run<M, Array<M>, Array<M>>});
    table.push_back({"Mul_mm" + size, run<M, Array<M>, Array<M>>});
    table.push_back({"Mul_mam" + size, run<M, Array<M>, Single<M>>});
    table.push_back({"Mul_mma" + size, run<M, Single<M>, Array<M>>});
    table.push_back({"Mul_mat" + size, run<M, Array<M>, TransposedSingle<M>>});
    table.push_back({"Mul_tam" + size, run<M, TransposedArray<M>, Single<M>>});
    table.push_back({"Mul_mac" + size, runScaling<M>});

    using V = Vector<T, n>;
    if constexpr (n <= 8) {
        table.push_back({"Mul_mva" + size, run<V, Single<M>, Array<V>>});
    } else {
        table.push_back({"Mul_mva" + size, runOnColumns<T, n>});
    }
    table.push_back({"Mul_mava" + size, run<V, Array<M>, Array<V>>});
    table.push_back({"Mul_tava" + size, run<V, TransposedArray<M>, Array<V>>});
    table.push_back({"Mul_vac" + size, runScaling<V>});
    table.push_back({"Gaxpy_mva" + size, runSum<T, n, Array<V>>});
    table.push_back({"Gaxpy_mvav" + size, runSum<T, n, Single<V>>});
}

} // namespace

void addProducts(PeerTable &table) {
    forEach<productOrders>([&](auto n) {
        addOrder<float, n>(table, "32f");
        addOrder<double, n>(table, "64f");
    });
}

} // namespace lxpm::bench::eigen
