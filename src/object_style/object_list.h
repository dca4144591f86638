#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <list>
#include <unordered_map>

namespace zel::object_style {

/// A doubly linked list of objects that others own, each at most once, with a cursor.
///
/// The cursor stands on an object whenever the list has one. Only `first`, `next` and removing move it; a walk with `begin` and
/// `end` leaves it alone.
template <class T> class ObjectList {
public:
    ObjectList() = default;
    ObjectList(const ObjectList&) = delete;
    ObjectList& operator=(const ObjectList&) = delete;

    /// Moves the cursor to the first object. Null if the list is empty.
    T* first()
    {
        m_cursor = m_objects.begin();
        return current();
    }
    /// The object under the cursor; null if the list is empty.
    [[nodiscard]] T* current() const { return m_objects.empty() ? nullptr : *m_cursor; }
    /// Moves the cursor on. Null behind the last object, on which the cursor then stays.
    T* next()
    {
        if (m_objects.empty() || std::next(m_cursor) == m_objects.end())
            return nullptr;
        return *++m_cursor;
    }
    [[nodiscard]] std::size_t count() const { return m_objects.size(); }
    /// The first object with that id; null if there is none.
    [[nodiscard]] T* find(std::uint32_t id) const
    {
        for (T* object : m_objects) {
            if (object->id == id)
                return object;
        }
        return nullptr;
    }

    /// Appends an object. False, with the list unchanged, if it is there already.
    bool add(T& object)
    {
        const auto [place, isNew] = m_places.try_emplace(&object);
        if (!isNew)
            return false;
        place->second = m_objects.insert(m_objects.end(), &object);
        if (m_objects.size() == 1)
            m_cursor = place->second;
        return true;
    }

    /// Takes the object under the cursor out. The cursor moves to the following one, from the last to the one before.
    /// @return  the object that was taken out, null if the list is empty
    T* removeCurrent()
    {
        T* removed = current();
        if (removed != nullptr)
            remove(*removed);
        return removed;
    }
    /// Takes an object out; if the cursor stands on it, it moves as in `removeCurrent`. False if the object is not in the list.
    bool remove(T& object)
    {
        const auto place = m_places.find(&object);
        if (place == m_places.end())
            return false;
        const bool underCursor = m_cursor == place->second;
        const auto following = m_objects.erase(place->second);
        m_places.erase(place);
        if (underCursor && !m_objects.empty())
            m_cursor = following != m_objects.end() ? following : std::prev(following);
        return true;
    }

    [[nodiscard]] auto begin() const { return m_objects.begin(); }
    [[nodiscard]] auto end() const { return m_objects.end(); }

private:
    using Objects = std::list<T*>;
    Objects m_objects;
    typename Objects::iterator m_cursor{};
    std::unordered_map<const T*, typename Objects::iterator> m_places;  // long lists refuse what they hold without a walk
};

}  // namespace zel::object_style
