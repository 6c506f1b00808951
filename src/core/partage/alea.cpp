#include "partage/alea.h"

#include <chrono>
#include <cmath>

namespace {

double enFraction(std::mt19937 &generateur)
{
    return static_cast<double>(generateur()) / 4294967296.0;
}

} // namespace

AleaHorloge::AleaHorloge()
{
    Randomize();
}

double AleaHorloge::suivant()
{
    return enFraction(m_generateur);
}

void AleaHorloge::Randomize()
{
    const auto maintenant = std::chrono::high_resolution_clock::now().time_since_epoch().count();
    m_generateur.seed(static_cast<std::mt19937::result_type>(maintenant ^ (maintenant >> 32)));
}

AleaFixe::AleaFixe(quint32 graine)
    : m_generateur(graine)
{
}

double AleaFixe::suivant()
{
    return enFraction(m_generateur);
}

qint32 AleaEntre(SourceAleatoire &alea, qint32 bas, qint32 haut)
{
    qint64 borne = qint64(haut) + 1;
    if (borne < 1) {
        borne = 10;
        bas = 0;
    }
    if (bas >= borne)
        bas = 0;
    qint64 tirage = -1;
    do
        tirage = std::llrint(alea.suivant() * static_cast<double>(borne));
    while (tirage < bas || tirage == borne);
    return static_cast<qint32>(tirage);
}
