#include "crypto/SecretBytes.h"

#include <openssl/crypto.h>

namespace corvane {

SecretBytes& SecretBytes::operator=(SecretBytes&& other) noexcept {
    if (this != &other) {
        wipe();
        m_bytes = std::move(other.m_bytes);
    }
    return *this;
}

void SecretBytes::truncate(size_t size) {
    OPENSSL_cleanse(m_bytes.data() + size, m_bytes.size() - size);
    m_bytes.resize(size);
}

void SecretBytes::wipe() {
    OPENSSL_cleanse(m_bytes.data(), m_bytes.size());
}

} // namespace corvane
