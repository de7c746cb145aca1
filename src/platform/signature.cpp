#include "platform/signature.h"

#include <memory>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/x509.h>
#include <vector>

namespace benevix {
namespace {

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;

// What was wrong must not be taken for a fault of a connection, whose errors the library keeps in
// the same place.
struct ErrorsForgotten {
  ErrorsForgotten() { ERR_set_mark(); }
  ~ErrorsForgotten() { ERR_pop_to_mark(); }
  ErrorsForgotten(const ErrorsForgotten&) = delete;
  ErrorsForgotten& operator=(const ErrorsForgotten&) = delete;
};

const unsigned char* BytesOf(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

// Null for a text that is no key.
Key ReadKey(const std::string& base64) {
  constexpr std::size_t longest = 1000;  // characters; a key has 60
  Key none(nullptr, EVP_PKEY_free);
  if (base64.empty() || base64.size() > longest) return none;
  std::vector<unsigned char> bytes(base64.size());
  const int size = EVP_DecodeBlock(bytes.data(), BytesOf(base64), static_cast<int>(base64.size()));
  if (size <= 0) return none;
  const unsigned char* begin = bytes.data();
  Key key(d2i_PUBKEY(nullptr, &begin, size), EVP_PKEY_free);
  return key && EVP_PKEY_get_id(key.get()) == EVP_PKEY_ED25519 ? std::move(key) : std::move(none);
}

}  // namespace

bool IsPublicKey(const std::string& key) {
  const ErrorsForgotten forget;
  return ReadKey(key) != nullptr;
}

bool IsSignedBy(const std::string& key, std::string_view bytes, std::string_view signature) {
  const ErrorsForgotten forget;
  const Key read = ReadKey(key);
  const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(),
                                                                        EVP_MD_CTX_free);
  return read != nullptr && context != nullptr &&
         EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, read.get()) == 1 &&
         EVP_DigestVerify(context.get(), BytesOf(signature), signature.size(), BytesOf(bytes),
                          bytes.size()) == 1;
}

}  // namespace benevix
