#include "aspect/apparence.h"
#include "aspect/echelle.h"
#include "bilan.h"
#include "cloture.h"
#include "ecran.h"
#include "incident.h"
#include "journee.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTextStream>

namespace demonstration {

namespace {

const QString base = u"VarloBase.mdb"_qs;
/// What the program finds beside its base.
const QStringList ressources{u"*.ico"_qs, u"drelin.WAV"_qs};
/// Lies beside the base of a demonstration, and of nothing else.
const QString compteRendu = u"demonstration.txt"_qs;

void copie(const QString &source, const QString &cible)
{
    exige(QFile::copy(source, cible),
          u"Le fichier %1 ne peut pas être copié dans %2."_qs.arg(QDir::toNativeSeparators(source),
                                                                  QDir::toNativeSeparators(cible)));
    QFile::setPermissions(cible, QFile::permissions(cible) | QFile::WriteOwner);
}

void creeDossier(const QString &dossier)
{
    exige(QDir().mkpath(dossier), u"Le dossier %1 ne peut pas être créé."_qs.arg(QDir::toNativeSeparators(dossier)));
}

/// Puts a fresh base into the folder, in the place of what an earlier demonstration left there. A base that is not a
/// demonstration's is somebody's competitions, and stays.
void prepareDossier(const QDir &dossier)
{
    exige(!dossier.exists(base) || dossier.exists(compteRendu),
          u"Le dossier %1 contient une base qui n'est pas celle d'une démonstration ; elle reste intacte. "
          u"Choisissez un autre dossier."_qs.arg(QDir::toNativeSeparators(dossier.path())));
    for (const QString &nom : QStringList{base, base + u"-wal"_qs, base + u"-shm"_qs} + dossier.entryList(ressources)
             + Photographe::fichiers() + Impressions::fichiers() + Registre::fichiers() + Cloture::fichiers())
        exige(!dossier.exists(nom) || QFile::remove(dossier.filePath(nom)),
              u"Le fichier %1 ne peut pas être remplacé."_qs.arg(QDir::toNativeSeparators(dossier.filePath(nom))));
    const QDir programme(QApplication::applicationDirPath());
    QFile marque(dossier.filePath(compteRendu));
    exige(marque.open(QIODevice::WriteOnly), u"Le dossier %1 n'accepte pas d'écriture."_qs.arg(dossier.path()));
    copie(programme.filePath(u"../base/"_qs + base), dossier.filePath(base));
    for (const QString &nom : programme.entryList(ressources))
        copie(programme.filePath(nom), dossier.filePath(nom));
}

void gardeCompteRendu(const QDir &dossier, const QStringList &lignes)
{
    QFile fichier(dossier.filePath(compteRendu));
    const QByteArray texte = lignes.join(u'\n').toUtf8() + '\n';
    exige(fichier.open(QIODevice::WriteOnly | QIODevice::Text) && fichier.write(texte) == texte.size(),
          u"Le compte rendu ne peut pas être écrit."_qs);
}

void joue(const Options &options)
{
    const QDir dossier(options.dossier);
    QElapsedTimer chronometre;
    chronometre.start();
    Hasard hasard(options.graine);
    const Plateau plateau(options, hasard);
    plateau.preenregistre(dossier.filePath(base));
    Journee journee(options, plateau, hasard);
    journee.joue();
    journee.termine();

    const Bilan bilan(dossier.filePath(base), plateau, options, journee.avertis());
    const QStringList lignes = bilan.lignes();
    dit(QString());
    for (const QString &ligne : lignes + bilan.fautes())
        dit(ligne);
    gardeCompteRendu(dossier, lignes + bilan.fautes());
    exige(bilan.fautes().isEmpty(), u"La journée enfreint %1 règle(s)."_qs.arg(bilan.fautes().size()));
    Cloture(options, plateau).joue();
    dit(u"Concours terminé en %1 s ; la base et les images sont dans %2"_qs
            .arg(double(chronometre.elapsed()) / 1000, 0, 'f', 1)
            .arg(QDir::toNativeSeparators(dossier.absolutePath())));
}

} // namespace

void dit(const QString &ligne)
{
    static QTextStream sortie(stdout);
    sortie << ligne << Qt::endl;
}

} // namespace demonstration

int main(int argc, char *argv[])
{
    using namespace demonstration;
    const EcranPortable ecran;
    const std::unique_ptr<QApplication> application = ouvreApplication(argc, argv);
    try {
        const Options options = litOptions(*application);
        appliqueApparence(*application);
        creeDossier(options.dossier);
        const InstanceUnique instance(options.dossier);
        exige(!instance.dejaPrise(), u"Un autre programme se sert déjà de ce dossier."_qs);
        prepareDossier(options.dossier);
        joue(options);
    } catch (const Incident &incident) {
        QTextStream(stderr) << incident.phrase() << Qt::endl;
        return 1;
    } catch (const std::exception &erreur) {
        QTextStream(stderr) << QString::fromUtf8(erreur.what()) << Qt::endl;
        return 1;
    }
    return 0;
}
