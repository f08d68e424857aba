// The SHA1_* calls are deprecated in OpenSSL 3 in favour of the EVP interface, which allocates; the stack
// context is the point here.
#define OPENSSL_SUPPRESS_DEPRECATED
#include "bsc/Hash.h"

namespace Bsc {

Hash::Hash() : m_context(), m_digest(), m_bFinished(false)
{
    SHA1_Init(&m_context);
}

void Hash::update(void const* data, std::size_t size)
{
    if (size == 0)
        return;
    SHA1_Update(&m_context, data, size);
    m_bFinished = false;
}

std::array<unsigned char, 20> const& Hash::digest() const
{
    if (!m_bFinished) {
        // Finish a copy so that the running context can take more bytes.
        SHA_CTX copy = m_context;
        SHA1_Final(m_digest.data(), &copy);
        m_bFinished = true;
    }
    return m_digest;
}

bool Hash::operator==(Hash const& other) const
{
    return digest() == other.digest();
}

} // namespace Bsc
