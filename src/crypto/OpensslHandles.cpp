#include "crypto/OpensslHandles.h"

#include <openssl/bio.h>
#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/kdf.h>

namespace corvane {

void OpensslDeleter::operator()(bio_st* chain) const {
    BIO_free_all(chain);
}

void OpensslDeleter::operator()(evp_cipher_ctx_st* context) const {
    EVP_CIPHER_CTX_free(context);
}

void OpensslDeleter::operator()(evp_cipher_st* cipher) const {
    EVP_CIPHER_free(cipher);
}

void OpensslDeleter::operator()(evp_kdf_ctx_st* context) const {
    EVP_KDF_CTX_free(context);
}

void OpensslDeleter::operator()(evp_kdf_st* kdf) const {
    EVP_KDF_free(kdf);
}

void OpensslDeleter::operator()(evp_pkey_ctx_st* context) const {
    EVP_PKEY_CTX_free(context);
}

void OpensslDeleter::operator()(evp_pkey_st* key) const {
    EVP_PKEY_free(key);
}

void OpensslDeleter::operator()(unsigned char* buffer) const {
    OPENSSL_free(buffer);
}

} // namespace corvane
