#include "store/erreur.h"

namespace store {

Erreur::Erreur(int numero, const QString &phrase)
    : m_numero(numero)
    , m_phrase(phrase)
    , m_utf8(phrase.toUtf8())
{
}

} // namespace store
