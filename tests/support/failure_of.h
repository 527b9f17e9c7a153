#pragma once

#include "toolkit/failure.h"

namespace tarvex::testing {

// What the call fails with; the number 0 when it does not fail.
template <class Call>
Failure FailureOf(Call call) {
    try {
        call();
    } catch (const Failure& failure) {
        return failure;
    }
    return {0, {}};
}

template <class Call>
int NumberOf(Call call) {
    return FailureOf(call).Number();
}

}  // namespace tarvex::testing
