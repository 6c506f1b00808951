#include "hasard.h"

namespace demonstration {

Hasard::Hasard(quint32 graine)
    : m_generateur(graine)
{
    // The program draws from a generator of the same seed: the two must not give the same numbers.
    m_generateur.discard(1000);
}

// The distributions of the standard library differ from one library to the next.
int Hasard::entre(int bas, int haut)
{
    const quint64 etendue = quint64(haut - bas) + 1;
    return bas + int((quint64(m_generateur()) * etendue) >> 32);
}

} // namespace demonstration
