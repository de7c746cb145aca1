#pragma once

#include <memory>
#include <openssl/evp.h>
#include <openssl/x509v3.h>

namespace benevix {

// A certificate of 127.0.0.1, valid for an hour, that nobody trusts unless told to.
struct TestCertificate {
  TestCertificate() {
    X509_set_version(certificate.get(), X509_VERSION_3);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), 0);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600);
    X509_NAME* const name = X509_get_subject_name(certificate.get());
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char*>("127.0.0.1"), -1, -1, 0);
    X509_set_issuer_name(certificate.get(), name);
    X509_EXTENSION* const host =
        X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, "IP:127.0.0.1");
    X509_add_ext(certificate.get(), host, -1);
    X509_EXTENSION_free(host);
    X509_set_pubkey(certificate.get(), key.get());
    X509_sign(certificate.get(), key.get(), EVP_sha256());
  }

  std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key{EVP_RSA_gen(2048), EVP_PKEY_free};
  std::unique_ptr<X509, decltype(&X509_free)> certificate{X509_new(), X509_free};
};

}  // namespace benevix
