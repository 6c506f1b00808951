#include "garde/dossier_travail.h"

#include "partage/base.h"
#include "store/droits.h"
#include "store/fichiers.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryFile>

namespace {

/// What the pictures and sounds were when they were last copied: one that the user has replaced stays until a version
/// brings another.
const QString nomEmpreintes = u"originaux.ini"_qs;

bool lit(const QString &chemin, QByteArray &contenu)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        return false;
    contenu = fichier.readAll();
    return fichier.error() == QFileDevice::NoError;
}

/// Whole or not at all.
bool pose(const QString &chemin, const QByteArray &contenu)
{
    QSaveFile fichier(chemin);
    return fichier.open(QIODevice::WriteOnly) && fichier.write(contenu) == contenu.size() && fichier.commit();
}

QString phraseEchec(const QString &fichier, const QString &dossier)
{
    const QString phrase =
        u"%1 ne peut pas être copié dans le dossier\r\n%2\r\nVérifiez la place et les droits de ce dossier."_qs;
    return phrase.arg(fichier, QDir::toNativeSeparators(dossier));
}

/// Whether results wait there that are not yet in the base itself.
bool journalEnAttente(const QDir &dossier)
{
    return QFileInfo(dossier, nomBase + u"-wal"_qs).size() > 0;
}

/// A base set aside, or one whose reduction was cut short, must not be hidden by a new one.
bool traceDeBase(const QDir &dossier)
{
    return dossier.exists(nomBase) || dossier.exists(nomBaseTemporaire) || journalEnAttente(dossier);
}

QString poseBase(const QDir &originaux, const QDir &dossier)
{
    if (traceDeBase(dossier))
        return {};
    if (journalEnAttente(originaux))
        return u"%1 n'a pas été refermé et son dossier ne peut pas être modifié.\r\n"
               u"Ouvrez-le d'abord là où il peut être écrit."_qs.arg(
                   QDir::toNativeSeparators(originaux.filePath(nomBase)));
    if (!store::recopie(originaux.filePath(nomBase), dossier.filePath(nomBase)))
        return phraseEchec(nomBase, dossier.path());
    return {};
}

QString rafraichit(const QDir &originaux, const QDir &dossier)
{
    QSettings empreintes(dossier.filePath(nomEmpreintes), QSettings::IniFormat);
    for (const QString &nom : originaux.entryList({u"*.ico"_qs, u"*.wav"_qs}, QDir::Files)) {
        QByteArray contenu;
        if (!lit(originaux.filePath(nom), contenu))
            return phraseEchec(nom, dossier.path());
        const auto empreinte =
            QString::fromLatin1(QCryptographicHash::hash(contenu, QCryptographicHash::Sha256).toHex());
        if (dossier.exists(nom) && empreintes.value(nom).toString() == empreinte)
            continue;
        if (!pose(dossier.filePath(nom), contenu))
            return phraseEchec(nom, dossier.path());
        empreintes.setValue(nom, empreinte);
    }
    empreintes.sync();
    return empreintes.status() == QSettings::NoError ? QString() : phraseEchec(nomEmpreintes, dossier.path());
}

} // namespace

DossierTravail::DossierTravail(const Lieux &lieux, bool programmeInscriptible)
    : m_chemin(lieux.programme)
{
    const bool installe = QFile::exists(QDir(lieux.installes).filePath(nomBase));
    const bool baseACote = QFile::exists(QDir(lieux.programme).filePath(nomBase));
    // An administrator can write everywhere; an installed program still keeps no base among the system's programs.
    if (programmeInscriptible && (baseACote || !installe))
        return;
    m_chemin = lieux.personnel;
    m_originaux = installe ? lieux.installes : lieux.programme;
    m_baseDeplacee = !installe;
    QDir().mkpath(m_chemin);
    store::reserve(m_chemin);
}

bool DossierTravail::aUneBase() const
{
    return QDir(m_chemin).exists(nomBase);
}

QString DossierTravail::remplit() const
{
    if (m_originaux.isEmpty())
        return {};
    const QDir originaux(m_originaux);
    const QDir dossier(m_chemin);
    if (!dossier.exists())
        return u"Le dossier\r\n%1\r\nne peut pas être créé."_qs.arg(QDir::toNativeSeparators(m_chemin));

    // The base beside the program has been written to since, and now its folder is read-only (a locked USB stick): the
    // operator must not look for its competitions in vain.
    const bool deplacee = m_baseDeplacee
        && (!aUneBase() || QFileInfo(originaux, nomBase).lastModified() > QFileInfo(dossier, nomBase).lastModified());
    QString phrase = poseBase(originaux, dossier);
    if (phrase.isEmpty())
        phrase = rafraichit(originaux, dossier);
    if (phrase.isEmpty() && deplacee)
        phrase = u"Le dossier du programme ne peut pas être modifié ; les concours sont dans\r\n%1"_qs.arg(
            QDir::toNativeSeparators(m_chemin));
    return phrase;
}

bool dossierInscriptible(const QString &dossier)
{
    QTemporaryFile essai(QDir(dossier).filePath(u"varlotour-XXXXXX.essai"_qs));
    return essai.open();
}
