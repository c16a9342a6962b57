#pragma once

#include <QCryptographicHash>
#include <UIComponentsExport.h>
#include <cstddef>

namespace kvl {

/// The MD5 digest of a text that arrives in pieces.
///
/// Call Init(), then Update() for each piece, then Final(); Init() makes the object ready for another
/// text. A new object is ready as well.
class UICOMPONENTS_EXPORT DMD5
{
public:
    /// Length of a digest in bytes.
    static constexpr std::size_t kDigestSize = 16;

    DMD5();

    /// Forgets everything that was added.
    void Init();

    /// Adds @p length bytes. A null @p data adds nothing.
    void Update(const void* data, std::size_t length);

    /// Writes the kDigestSize bytes of the digest of all that was added since Init().
    /// A null @p digest is left alone.
    void Final(unsigned char* digest) const;

private:
    QCryptographicHash m_hash;
};

} // namespace kvl
