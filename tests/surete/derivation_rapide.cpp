#include <dlfcn.h>

// The password of each file is stretched for tens of milliseconds at each opening, on purpose. Hundreds of programs
// that start and die have no time for it: the tests that link this stretch it once, for all the files that they make.

namespace {

constexpr int iterations = 1;

template<typename Fonction>
Fonction *suivante(const char *nom)
{
    return reinterpret_cast<Fonction *>(dlsym(RTLD_NEXT, nom));
}

} // namespace

extern "C" {

using DerivationSha1 = int(const char *, int, const unsigned char *, int, int, int, unsigned char *);
using Derivation = int(const char *, int, const unsigned char *, int, int, const void *, int, unsigned char *);

int PKCS5_PBKDF2_HMAC_SHA1(const char *cle, int taille, const unsigned char *sel, int tailleSel, int, int tailleSortie,
                           unsigned char *sortie)
{
    static auto *reelle = suivante<DerivationSha1>("PKCS5_PBKDF2_HMAC_SHA1");
    return reelle(cle, taille, sel, tailleSel, iterations, tailleSortie, sortie);
}

int PKCS5_PBKDF2_HMAC(const char *cle, int taille, const unsigned char *sel, int tailleSel, int, const void *resume,
                      int tailleSortie, unsigned char *sortie)
{
    static auto *reelle = suivante<Derivation>("PKCS5_PBKDF2_HMAC");
    return reelle(cle, taille, sel, tailleSel, iterations, resume, tailleSortie, sortie);
}
}
