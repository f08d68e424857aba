#include "bsc/AbstractData.h"

namespace Bsc {

AbstractData::AbstractData() : pValue(nullptr), pType(nullptr), m_copy(nullptr), m_destroy(nullptr) {}

AbstractData::AbstractData(void* value, std::type_info const* type, void* (*copy)(void const*),
                           void (*destroy)(void*))
    : pValue(value), pType(type), m_copy(copy), m_destroy(destroy)
{
}

AbstractData::AbstractData(AbstractData const& other) : AbstractData()
{
    vCopyFrom(other);
}

AbstractData& AbstractData::operator=(AbstractData const& other)
{
    if (this != &other) {
        vRelease();
        vCopyFrom(other);
    }
    return *this;
}

AbstractData::~AbstractData()
{
    vRelease();
}

void AbstractData::vRelease()
{
    if (pValue && m_destroy)
        m_destroy(pValue);
    pValue = nullptr;
    pType = nullptr;
}

void AbstractData::vCopyFrom(AbstractData const& other)
{
    m_copy = other.m_copy;
    m_destroy = other.m_destroy;
    if (other.pValue && other.m_copy) {
        pValue = other.m_copy(other.pValue);
        pType = other.pType;
    }
}

} // namespace Bsc
