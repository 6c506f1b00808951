#include "app/programme.h"

#include "app/accueil.h"
#include "app/manuel.h"
#include "app/torvik.h"
#include "clock/frmhorloge.h"
#include "competitions/econcours.h"
#include "maintenance/alerte.h"
#include "platform/acces_clavier.h"
#include "printing/i_tirage.h"
#include "printing/palmares.h"
#include "printing/resusoc.h"
#include "registration/eequipes.h"
#include "registration/ejoueurs.h"
#include "registration/listco.h"
#include "registration/listeq.h"
#include "registration/listesoc.h"
#include "registration/listjo.h"
#include "results/detail_resultats.h"
#include "results/eresultats.h"
#include "results/groupes.h"
#include "results/manqres.h"
#include "results/valresu.h"
#include "ui/langues.h"

#include <QDir>
#include <QSysInfo>

namespace {

template<typename Forme>
Formulaires::Fabrique fabrique()
{
    return [](const Contexte &contexte, QWidget *parent) -> Formulaire * { return new Forme(contexte, parent); };
}

} // namespace

Programme::Programme(const QString &dossier, SourceAleatoire &alea, const Horloge &horloge, Boites &boites)
    : m_partage(dossier, alea, horloge)
    , m_boites(boites)
{
    enregistreFormes();
}

Programme::~Programme()
{
    termine();
}

void Programme::enregistreFormes()
{
    m_formulaires.enregistre(u"Accueil"_qs, fabrique<Accueil>());
    m_formulaires.enregistre(u"Alerte"_qs, fabrique<Alerte>());
    m_formulaires.enregistre(u"Econcours"_qs, fabrique<Econcours>());
    m_formulaires.enregistre(u"Eequipes"_qs, fabrique<Eequipes>());
    m_formulaires.enregistre(u"FrmHorloge"_qs, fabrique<FrmHorloge>());
    m_formulaires.enregistre(u"langues"_qs, fabrique<langues>());
    m_formulaires.enregistre(u"Ejoueurs"_qs, fabrique<Ejoueurs>());
    m_formulaires.enregistre(u"I_tirage"_qs, fabrique<I_tirage>());
    m_formulaires.enregistre(u"Listco"_qs, fabrique<Listco>());
    m_formulaires.enregistre(u"listeq"_qs, fabrique<listeq>());
    m_formulaires.enregistre(u"Listesoc"_qs, fabrique<Listesoc>());
    m_formulaires.enregistre(u"listjo"_qs, fabrique<listjo>());
    m_formulaires.enregistre(u"EResultats"_qs, fabrique<EResultats>());
    m_formulaires.enregistre(u"palmares"_qs, fabrique<palmares>());
    m_formulaires.enregistre(u"Resusoc"_qs, fabrique<Resusoc>());
    m_formulaires.enregistre(u"valresu"_qs, fabrique<valresu>());
    m_formulaires.enregistre(u"manqres"_qs, fabrique<manqres>());
    m_formulaires.enregistre(u"Groupes"_qs, fabrique<Groupes>());
    m_formulaires.enregistre(u"Détail_résultats"_qs, fabrique<DetailResultats>());
}

bool Programme::demarre()
{
    const Contexte contexte{m_partage, m_formulaires, m_boites};
    m_torvik = std::make_unique<Torvik>(contexte);
    m_formulaires.prepare(contexte, m_torvik.get());
    m_clavier = std::make_unique<AccesClavier>(*m_torvik, m_boites);
    QObject::connect(m_clavier.get(), &AccesClavier::aideDemandee, m_torvik.get(),
                     [this] { OuvreManuel(m_manuel, m_boites); });
    try {
        m_torvik->Form_Load();
    } catch (const store::Erreur &erreur) {
        m_boites.MsgBox(erreur.phrase(), vbCritical);
        return false;
    } catch (const std::exception &erreur) {
        m_boites.MsgBox(QString::fromUtf8(erreur.what()), vbCritical);
        return false;
    }
    return true;
}

void Programme::termine()
{
    if (m_torvik != nullptr)
        m_torvik->close();
    m_clavier.reset();
    m_torvik.reset();
}

InstanceUnique::InstanceUnique(const QString &dossier)
    : m_verrou(QDir(dossier).filePath(u"VarloTour.verrou"_qs))
{
    // A lock is never too old: only the end of its process frees it.
    m_verrou.setStaleLockTime(0);
    m_dejaPrise = !prend() && m_verrou.error() == QLockFile::LockFailedError;
}

/// A lock file that names nobody was cut short by a power cut, and one that names another machine may have come with a
/// copied folder: neither tells of a living process. The system does not let go of the file of a living one.
bool InstanceUnique::prend()
{
    if (m_verrou.tryLock())
        return true;
    qint64 processus = 0;
    QString machine;
    QString programme;
    const bool lisible = m_verrou.getLockInfo(&processus, &machine, &programme);
    if (m_verrou.error() != QLockFile::LockFailedError || (lisible && machine == QSysInfo::machineHostName()))
        return false;
    return m_verrou.removeStaleLockFile() && m_verrou.tryLock();
}

bool InstanceUnique::cedeLaPlace(Boites &boites) const
{
    if (m_dejaPrise)
        boites.MsgBox(u"Varlo est déjà en action"_qs, vbExclamation, u"Erreur"_qs);
    return m_dejaPrise;
}
