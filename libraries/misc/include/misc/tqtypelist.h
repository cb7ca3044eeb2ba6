// tqTypeList: a closed set of classes named once, from which visitors' users, cloners and comparers follow.
#pragma once

#include <cstddef>
#include <type_traits>

namespace misc {

template <class... Ts>
struct tqTypeList {
    static constexpr std::size_t size = sizeof...(Ts);

    /// Calls f(static_cast<Ts*>(nullptr)) for each type, in list order.
    template <class F>
    static void ForEach(F&& f) {
        (f(static_cast<Ts*>(nullptr)), ...);
    }
    template <class T>
    static constexpr bool Contains = (std::is_same<T, Ts>::value || ...);
};

}  // namespace misc
