#include "fenetres/patience.h"

#include "fenetres/alerte.h"

#include <QLocale>

namespace {

constexpr int retardMs = 1000;

} // namespace

Patience::Patience(const Contexte &contexte, const QString &texte)
    : m_formulaires(contexte.formulaires)
{
    m_formulaires.Charge(nomAlerte);
    dit(texte);
    m_formulaires.MontreSansFocus(nomAlerte);
    if (auto *alerte = qobject_cast<Alerte *>(m_formulaires.forme(nomAlerte)))
        alerte->attendPeinture();
}

Patience::~Patience()
{
    m_formulaires.Decharge(nomAlerte);
}

void Patience::dit(const QString &texte)
{
    if (auto *alerte = qobject_cast<Alerte *>(m_formulaires.forme(nomAlerte)))
        alerte->dit(texte);
}

PatienceTardive::PatienceTardive(const Contexte &contexte, const QString &texte)
    : m_contexte(contexte)
    , m_texte(texte)
{
    m_debut.start();
}

void PatienceTardive::avance(qint64 nombre)
{
    if (!m_respiration.echue())
        return;
    if (m_avis || m_debut.hasExpired(retardMs)) {
        const QString texte = u"%1\n  %2"_qs.arg(m_texte, QLocale(QLocale::French).toString(nombre));
        if (m_avis)
            m_avis->dit(texte);
        else
            m_avis.emplace(m_contexte, texte);
    }
    m_respiration.souffle();
}
