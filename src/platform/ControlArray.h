#pragma once

#include <array>
#include <memory>

#include "platform/Form.h"

namespace platform {

// A control array of a screen: N controls of one name, indexed from 0, each registered
// on the form as "name(i)".
template <typename T, int N>
class ControlArray {
  public:
    ControlArray(Form& form, const char* name) {
        for (int i = 0; i < N; ++i)
            items_[static_cast<size_t>(i)] = std::make_unique<T>(form, name, i);
    }
    T& operator[](int index) { return *items_.at(static_cast<size_t>(index)); }
    const T& operator[](int index) const { return *items_.at(static_cast<size_t>(index)); }
    static constexpr int Count() { return N; }

  private:
    std::array<std::unique_ptr<T>, N> items_;
};

}  // namespace platform
