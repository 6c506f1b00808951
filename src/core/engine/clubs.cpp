#include "engine/clubs.h"

namespace moteur {

int NumerosClubs::numero(const QString &club)
{
    const auto connu = m_numeros.constFind(club);
    if (connu != m_numeros.constEnd())
        return *connu;
    const int suivant = static_cast<int>(m_numeros.size());
    m_numeros.insert(club, suivant);
    return suivant;
}

} // namespace moteur
