#include "app/programme.h"

#include "app/formes.h"
#include "app/manuel.h"
#include "app/ouverture.h"
#include "app/torvik.h"
#include "fenetres/acces_clavier.h"

#include <QDir>
#include <QSysInfo>

Programme::Programme(const QString &dossier, SourceAleatoire &alea, const Horloge &horloge, Boites &boites)
    : m_partage(dossier, alea, horloge)
    , m_boites(boites)
{
    for (const LigneForme &ligne : TableFormes())
        m_formulaires.enregistre(ligne.nom, ligne.fabrique);
}

Programme::~Programme()
{
    termine();
}

bool Programme::demarre()
{
    const Contexte contexte{m_partage, m_formulaires, m_boites};
    m_torvik = std::make_unique<Torvik>(contexte);
    m_formulaires.prepare(contexte, m_torvik.get(), m_torvik->fond());
    m_clavier = std::make_unique<AccesClavier>(*m_torvik, m_boites);
    QObject::connect(m_clavier.get(), &AccesClavier::aideDemandee, m_torvik.get(),
                     [this] { OuvreManuel(m_manuel, m_boites); });
    try {
        m_torvik->Form_Load();
    } catch (const DepartRenonce &) {
        return false;
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
