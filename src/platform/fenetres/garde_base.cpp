#include "fenetres/garde_base.h"

#include "fenetres/sablier.h"
#include "garde/sauvegarde.h"

#include <QApplication>
#include <QDir>

using store::EtatFichier;

namespace {

/// A moment without an entry, after which the journal is taken in: nobody waits for it then.
constexpr int reposMs = 1000;

const QString saut = u"\r\n"_qs;

QString constat(EtatFichier etat)
{
    switch (etat) {
    case EtatFichier::Disparu:
        return u"n'est plus à sa place : il a été effacé, ou son dossier déplacé ou renommé"_qs;
    case EtatFichier::Remplace:
        return u"a été remplacé par un autre"_qs;
    case EtatFichier::Reecrit:
    case EtatFichier::Intact:
        break;
    }
    return u"a été réécrit ou coupé par un autre programme"_qs;
}

/// The base, when one is open and at rest.
store::BaseNative *baseAuRepos(const Contexte &contexte)
{
    store::Database &base = contexte.partage.BaseDonnees;
    return base.estOuverte() && base.native().horsTransaction() ? &base.native() : nullptr;
}

BilanCopie copieDeSecours(const Contexte &contexte)
{
    const Sablier sablier;
    return SauveBase(contexte.partage, RaisonCopie::Secours);
}

QString echecDit(const BilanCopie &copie)
{
    return u"Aucune copie n'a pu en être faite : "_qs + copie.cause;
}

} // namespace

void SurveilleFichier(const Contexte &contexte)
{
    const store::BaseNative *base = baseAuRepos(contexte);
    const EtatFichier etat = base == nullptr ? contexte.partage.EtatBaseDit : base->etatFichier();
    if (std::exchange(contexte.partage.EtatBaseDit, etat) == etat || etat == EtatFichier::Intact)
        return;
    const BilanCopie copie = copieDeSecours(contexte);
    const QString suite = copie.echouee()
        ? echecDit(copie) + saut + u"Imprimez les résultats avant de fermer le programme."_qs
        : u"Tout est dans la copie %1 ; une autre sera faite à la fermeture. Finissez ce qui presse, fermez le "
          u"programme, "
          u"puis remettez la dernière copie."_qs.arg(QDir::toNativeSeparators(copie.fichier));
    contexte.boites.MsgBox(
        u"Pendant que le programme travaille, le fichier %1 %2."_qs.arg(base->fichier(), constat(etat)) + saut
            + u"La saisie peut continuer : elle va dans le fichier resté ouvert, qui ne sera plus là au prochain "
              u"démarrage."_qs
            + saut + saut + suite,
        vbCritical);
}

void SauveAvantFermeture(const Contexte &contexte)
{
    const store::BaseNative *base = baseAuRepos(contexte);
    if (base == nullptr || base->etatFichier() == EtatFichier::Intact)
        return;
    if (const BilanCopie copie = copieDeSecours(contexte); copie.echouee())
        contexte.boites.MsgBox(u"La base a disparu. "_qs + echecDit(copie), vbCritical);
}

GardeBase::GardeBase(const Contexte &contexte)
    : m_contexte(contexte)
{
    QObject::connect(&m_minuterie, &QTimer::timeout, &m_minuterie, [this] { regarde(); });
    m_minuterie.start(reposMs);
}

void GardeBase::regarde()
{
    const store::BaseNative *base = baseAuRepos(m_contexte);
    // A long operation shows the wait cursor: what it writes is not at rest.
    if (base == nullptr || QApplication::overrideCursor() != nullptr)
        return;
    SurveilleFichier(m_contexte);
    base = baseAuRepos(m_contexte);
    if (base == nullptr || std::exchange(m_changements, base->changements()) != base->changements())
        return;
    if (base->journalEnAttente())
        consolide();
}

void GardeBase::consolide()
{
    store::BaseNative *base = baseAuRepos(m_contexte);
    if (base == nullptr)
        return;
    try {
        base->consolide();
        m_echecDit = false;
    } catch (const store::Erreur &erreur) {
        if (!std::exchange(m_echecDit, true))
            m_contexte.boites
                .MsgBox(u"Le fichier %1 n'a pas pu être mis à jour : %2\r\nLes saisies sont gardées à côté "
                        u"de lui, dans %1-wal."_qs.arg(base->fichier(), erreur.phrase()),
                        vbExclamation);
    }
}
