#include "maintenance/lecteur_lignes.h"

namespace recu {

std::optional<QString> LecteurLignes::suivante()
{
    if (m_flux.regarde() == FluxOctets::fin)
        return std::nullopt;
    ++m_numero;
    m_ligne.resize(0);
    for (int octet = m_flux.regarde(); octet != FluxOctets::fin && !finDeLigne(octet); octet = m_flux.regarde()) {
        if (m_ligne.size() == longueurMax)
            throw ErreurLecture(u"La ligne est trop longue pour une liste."_qs);
        m_ligne += char(m_flux.lit());
    }
    PasseFinDeLigne(m_flux);
    return DecodeTexte(m_ligne);
}

} // namespace recu
