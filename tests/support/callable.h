// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// A function of any export's type, called with a list of arguments made at run time.

#ifndef LXPM_TESTS_SUPPORT_CALLABLE_H
#define LXPM_TESTS_SUPPORT_CALLABLE_H

#include <lxp/status.h>

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace lxpm::test {

using Argument = std::variant<const void *, int, float, double>;

/// A parameter's type as the model spells it.
template <class T>
std::string typeText() {
    if constexpr (std::is_pointer_v<T>) {
        using Pointee = std::remove_pointer_t<T>;
        if constexpr (std::is_pointer_v<Pointee>) {
            return typeText<std::remove_const_t<Pointee>>() + (std::is_const_v<Pointee> ? "const *" : "*");
        } else {
            return (std::is_const_v<Pointee> ? "const " : "") + typeText<std::remove_const_t<Pointee>>() + " *";
        }
    } else if constexpr (std::is_same_v<T, int>) {
        return "int";
    } else if constexpr (std::is_same_v<T, float>) {
        return "float";
    } else {
        static_assert(std::is_same_v<T, double>, "exports take pointers, int, float and double only");
        return "double";
    }
}

class Callable {
public:
    using Erased = void (*)();

    // What is done with functions of one type.
    struct Type {
        LxpStatus (*invoke)(Erased function, std::span<const Argument> arguments);
        std::vector<std::string> (*parameters)();
    };

    template <class... Parameters>
    static constexpr Type typeOf(LxpStatus (*)(Parameters...)) {
        return {&invoke<Parameters...>, &typeTexts<Parameters...>};
    }

    template <class... Parameters>
    explicit Callable(LxpStatus (*function)(Parameters...))
        : Callable(reinterpret_cast<Erased>(function), typeOf(function)) {}
    Callable(Erased function, const Type &type) : function_(function), type_(type) {}

    LxpStatus operator()(std::span<const Argument> arguments) const { return type_.invoke(function_, arguments); }

    std::vector<std::string> parameterTypes() const { return type_.parameters(); }

private:
    template <class... Parameters>
    static LxpStatus invoke(Erased function, std::span<const Argument> arguments) {
        if (arguments.size() != sizeof...(Parameters)) {
            throw std::invalid_argument("a call has more or fewer arguments than the function has parameters");
        }
        return [&]<std::size_t... index>(std::index_sequence<index...>) {
            return reinterpret_cast<LxpStatus (*)(Parameters...)>(function)(to<Parameters>(arguments[index])...);
        }
        (std::index_sequence_for<Parameters...>());
    }

    template <class... Parameters>
    static std::vector<std::string> typeTexts() {
        return {typeText<Parameters>()...};
    }

    template <class T>
    static T to(const Argument &argument) {
        if constexpr (std::is_pointer_v<T>) {
            return static_cast<T>(const_cast<void *>(std::get<const void *>(argument)));
        } else {
            return std::get<T>(argument);
        }
    }

    Erased function_;
    Type type_;
};

} // namespace lxpm::test

#endif
