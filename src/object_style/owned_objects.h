#pragma once

#include "object_style/object_list.h"

#include <memory>
#include <utility>

// The lists of the generator own what is in them; the lists at the objects themselves do not.
namespace zel::object_style {

/// Makes an object and puts it into a list that owns it.
template <class T, class... Arguments> T& makeIn(ObjectList<T>& list, Arguments&&... arguments)
{
    auto made = std::make_unique<T>(std::forward<Arguments>(arguments)...);
    list.add(*made);
    return *made.release();
}

/// Destroys every object of a list that owns them. The list is not to be used after that.
template <class T> void destroyAll(const ObjectList<T>& list)
{
    for (T* object : list)
        delete object;
}

}  // namespace zel::object_style
