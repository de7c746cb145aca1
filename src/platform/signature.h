#pragma once

#include <string>
#include <string_view>

namespace benevix {

// Signatures of files: Ed25519 (RFC 8032), 64 bytes. A public key is the base64 text of its PEM
// file, between the first line and the last one (RFC 8410).

[[nodiscard]] bool IsPublicKey(const std::string& key);

// Whether who has the private key to this public one has signed the bytes.
[[nodiscard]] bool IsSignedBy(const std::string& key, std::string_view bytes,
                              std::string_view signature);

}  // namespace benevix
