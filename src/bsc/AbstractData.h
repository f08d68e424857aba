#pragma once
#include <typeinfo>

namespace Bsc {

/// A type-erased value on the heap, used to pass a parameter's value without knowing its type.
///
/// The object owns the value it holds: it releases it with the destroy function on destruction and on
/// assignment. `pValue` and `pType` are public because parameter code reads them directly; both are null
/// when nothing is held.
class AbstractData {
public:
    void* pValue;                   ///< The held value, or null.
    std::type_info const* pType;    ///< Its type, or null.

    /// Holds nothing.
    AbstractData();
    /// Takes ownership of `value`, a heap object of type `type`. `copy` makes a heap copy of such a value,
    /// `destroy` releases one. A null copy function makes copies of this object hold nothing.
    AbstractData(void* value, std::type_info const* type, void* (*copy)(void const*), void (*destroy)(void*));
    AbstractData(AbstractData const& other);
    /// Releases the held value, then holds a copy of the other's, made with the other's copy function.
    AbstractData& operator=(AbstractData const& other);
    ~AbstractData();

    /// Wraps a copy of `value`.
    template <class T> static AbstractData make(T const& value);
    /// The held value when it is a `T`, else null.
    template <class T> T const* get() const;
    template <class T> T* get();

private:
    void vRelease();
    void vCopyFrom(AbstractData const& other);

    void* (*m_copy)(void const*);
    void (*m_destroy)(void*);
};

template <class T>
AbstractData AbstractData::make(T const& value)
{
    return AbstractData(
        new T(value), &typeid(T),
        [](void const* p) -> void* { return new T(*static_cast<T const*>(p)); },
        [](void* p) { delete static_cast<T*>(p); });
}

template <class T>
T const* AbstractData::get() const
{
    return (pType && *pType == typeid(T)) ? static_cast<T const*>(pValue) : nullptr;
}

template <class T>
T* AbstractData::get()
{
    return (pType && *pType == typeid(T)) ? static_cast<T*>(pValue) : nullptr;
}

} // namespace Bsc
