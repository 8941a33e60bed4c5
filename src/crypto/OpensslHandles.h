#pragma once

#include <memory>

struct bio_st;
struct evp_cipher_ctx_st;
struct evp_cipher_st;
struct evp_kdf_ctx_st;
struct evp_kdf_st;
struct evp_pkey_ctx_st;
struct evp_pkey_st;

namespace corvane {

/// Releases each kind of OpenSSL object with the function that belongs to it.
struct OpensslDeleter {
    void operator()(bio_st* chain) const;
    void operator()(evp_cipher_ctx_st* context) const;
    void operator()(evp_cipher_st* cipher) const;
    void operator()(evp_kdf_ctx_st* context) const;
    void operator()(evp_kdf_st* kdf) const;
    void operator()(evp_pkey_ctx_st* context) const;
    void operator()(evp_pkey_st* key) const;
    void operator()(unsigned char* buffer) const; ///< a buffer that OpenSSL allocated
};

template <typename T>
using OpensslPtr = std::unique_ptr<T, OpensslDeleter>;

} // namespace corvane
