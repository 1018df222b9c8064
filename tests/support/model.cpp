// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/model.h"

#include <algorithm>

namespace lxpm::test {

int permuted(int object, int index, int order) {
    return static_cast<int>((static_cast<long>(order - 1) * index + object) % order);
}

Form formOf(const Operand &operand, Layout layout) {
    if (operand.kind == Kind::Results || operand.kind == Kind::Indices || operand.kind == Kind::Scratch) {
        return Form::Dense;
    }
    if (operand.kind == Kind::Constant && !operand.isArray) {
        return Form::ByValue;
    }
    if (operand.isDense) {
        return Form::Dense;
    }
    switch (operand.ownLayout.value_or(layout)) {
    case Layout::ObjectPointers:
        return operand.isArray ? Form::ObjectPointers : Form::Strided;
    case Layout::ElementPointers:
        return operand.kind == Kind::Constant ? Form::Strided : Form::ElementPointers;
    case Layout::Strided:
        break;
    }
    return Form::Strided;
}

bool hasObjectStride(const Operand &operand, Form form) {
    return operand.isArray && (form == Form::Strided || form == Form::ElementPointers);
}

bool hasRowStride(const Operand &operand, Form form) {
    const bool isMatrix = operand.kind == Kind::Matrix || operand.kind == Kind::Transposed;
    return isMatrix && (form == Form::Strided || form == Form::ObjectPointers);
}

bool hasElementStride(const Operand &operand, Form form) {
    const bool isScalar = operand.kind == Kind::Constant || operand.kind == Kind::Results ||
                          operand.kind == Kind::Indices || operand.kind == Kind::Scratch;
    return !isScalar && (form == Form::Strided || form == Form::ObjectPointers);
}

LxpStatus statusOf(Check check) {
    switch (check) {
    case Check::Pointers:
        return lxpStatusNullPtrErr;
    case Check::Count:
        return lxpStatusCountErr;
    case Check::Sizes:
        return lxpStatusSizeErr;
    case Check::SizeMatch:
        return lxpStatusSizeMatchErr;
    case Check::Strides:
    case Check::LateStrides:
        return lxpStatusStrideErr;
    case Check::Offsets:
        return lxpStatusRoiShiftErr;
    }
    return lxpStatusOk;
}

std::optional<Check> checkOf(ParameterKind kind) {
    switch (kind) {
    case ParameterKind::Pointer:
        return Check::Pointers;
    case ParameterKind::Stride:
        return Check::Strides;
    case ParameterKind::LateStride:
        return Check::LateStrides;
    case ParameterKind::Offset:
        return Check::Offsets;
    case ParameterKind::Size:
        return Check::Sizes;
    case ParameterKind::Count:
        return Check::Count;
    case ParameterKind::Value:
        break;
    }
    return std::nullopt;
}

bool Model::mayBeInPlace(int source) const {
    const Operand &from = operands[source];
    const Operand &to = operands.back();
    return destinationMayBeSource && !from.isWritten && from.kind == to.kind && from.isArray == to.isArray &&
           from.rows == to.rows && from.columns == to.columns && formOf(from, layout) == formOf(to, layout);
}

bool Model::mustAgree(int size) const {
    return std::count_if(sizes.begin(), sizes.end(),
                         [=](const SizeParameter &parameter) { return parameter.size == size; }) > 1;
}

std::vector<Parameter> parametersOf(const Operand &operand, Layout layout, ElementType type) {
    const std::string number = type == ElementType::Float32 ? "float" : "double";
    const std::string element = operand.kind == Kind::Indices ? "int" : number;
    const std::string pointee = (operand.isWritten ? "" : "const ") + element;
    const Form form = formOf(operand, layout);

    std::vector<Parameter> parameters;
    switch (form) {
    case Form::ByValue:
        parameters.push_back({element, operand.role, ParameterKind::Value});
        break;
    case Form::Dense:
    case Form::Strided:
        parameters.push_back(
            {pointee + " *", operand.pointer.empty() ? operand.role : operand.pointer, ParameterKind::Pointer});
        break;
    case Form::ObjectPointers:
    case Form::ElementPointers:
        parameters.push_back({pointee + " *const *", operand.role + "Ptrs", ParameterKind::Pointer});
        parameters.push_back({"int", operand.role + "PtrOffset", ParameterKind::Offset});
        break;
    }
    if (hasObjectStride(operand, form)) {
        parameters.push_back({"int", operand.role + "ObjStride",
                              operand.isObjStrideLate ? ParameterKind::LateStride : ParameterKind::Stride});
    }
    if (hasRowStride(operand, form)) {
        parameters.push_back({"int", operand.role + "RowStride", ParameterKind::Stride});
    }
    if (hasElementStride(operand, form)) {
        parameters.push_back({"int", operand.role + "ElemStride", ParameterKind::Stride});
    }
    return parameters;
}

std::vector<Parameter> parametersOf(const Model &model) {
    std::vector<Parameter> parameters;
    const auto append = [&](bool last) {
        for (int index = 0; index < static_cast<int>(model.operands.size()); ++index) {
            if (model.operands[index].standsLast != last) {
                continue;
            }
            for (Parameter &parameter : parametersOf(model.operands[index], model.layout, model.type)) {
                parameters.push_back(std::move(parameter));
            }
            for (const SizeParameter &size : model.sizes) {
                if (size.operand == index) {
                    parameters.push_back({"int", size.name, ParameterKind::Size, size.size});
                }
            }
        }
    };
    append(false);
    if (model.hasCount) {
        parameters.push_back({"int", "count", ParameterKind::Count});
    }
    append(true);
    return parameters;
}

} // namespace lxpm::test
