#pragma once
#include <array>
#include <cstddef>
#include <openssl/sha.h>

namespace Bsc {

/// A running SHA-1 content hash. Bytes are fed with `update`; two hashes compare equal when the bytes fed
/// so far give the same digest. The context lives in the object: no allocation. Copyable.
class Hash {
public:
    Hash();

    /// Feeds `size` bytes at `data`. A null `data` with a zero size is allowed.
    void update(void const* data, std::size_t size);
    /// The SHA-1 digest of everything fed so far. Further updates may follow.
    std::array<unsigned char, 20> const& digest() const;

    bool operator==(Hash const& other) const;
    bool operator!=(Hash const& other) const { return !(*this == other); }

private:
    SHA_CTX m_context;
    mutable std::array<unsigned char, 20> m_digest;
    mutable bool m_bFinished;
};

} // namespace Bsc
