#include "app/programme.h"
#include "commun/fichiers_essai.h"
#include "journee.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Lecteur : public ToujoursOui
{
public:
    ReponseBoite MsgBox(const QString &texte, int drapeaux, const QString &titre) override
    {
        montre = u"%1|%2|%3"_qs.arg(texte).arg(drapeaux).arg(titre);
        return ReponseBoite::OK;
    }

    QString montre;
};

QString refus(const QString &dossier)
{
    Lecteur boites;
    const bool cede = InstanceUnique(dossier).cedeLaPlace(boites);
    EXPECT_EQ(cede, !boites.montre.isEmpty());
    return boites.montre;
}

/// Another process that holds the folder until it is killed.
pid_t programmeEnAction(const QString &dossier)
{
    int tube[2];
    EXPECT_EQ(pipe(tube), 0);
    const pid_t enfant = fork();
    if (enfant == 0) {
        const InstanceUnique instance(dossier);
        const char prise = instance.dejaPrise() ? 'n' : 'o';
        if (::write(tube[1], &prise, 1) == 1)
            pause();
        _exit(1);
    }
    char prise = 0;
    EXPECT_EQ(::read(tube[0], &prise, 1), 1);
    EXPECT_EQ(prise, 'o');
    close(tube[0]);
    close(tube[1]);
    return enfant;
}

void ecritVerrou(const QString &dossier, const QByteArray &contenu)
{
    ecritFichier(QDir(dossier).filePath(u"VarloTour.verrou"_qs), contenu);
}

} // namespace

TEST(UnSeulProgramme, TheSecondIsToldSoAndAKilledOneShutsNobodyOut)
{
    const QTemporaryDir dossier;
    const QString deja = u"Varlo est déjà en action|48|Erreur"_qs;
    for (int jour = 0; jour < 2; ++jour) {
        const pid_t premier = programmeEnAction(dossier.path());
        EXPECT_EQ(refus(dossier.path()), deja);
        EXPECT_EQ(refus(dossier.path()), deja) << "asking must not free it";
        kill(premier, SIGKILL);
        waitpid(premier, nullptr, 0);
        EXPECT_EQ(refus(dossier.path()), QString());
    }
}

TEST(UnSeulProgramme, ALockThatTellsOfNoLivingProgramShutsNobodyOut)
{
    const QTemporaryDir dossier;
    const QByteArray ici = QSysInfo::machineHostName().toUtf8();
    const QByteArray moi = QByteArray::number(getpid());
    // Cut short, garbled, of another machine, of a process that has ended.
    for (const QByteArray &reste : {QByteArray(), QByteArray("\0\0\0\0", 4), moi + "\nVarloTour\nautre-portable\n",
                                    QByteArray("99999999\nVarloTour\n") + ici + '\n'}) {
        ecritVerrou(dossier.path(), reste);
        EXPECT_EQ(refus(dossier.path()), QString()) << reste.toStdString();
    }
}

/// A session that ends, a terminal that is closed: the base is left as by the last window.
TEST(FinDuProgramme, ASignalClosesTheBase)
{
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        const QTemporaryDir dossier;
        const QString programme = dossier.filePath(u"VarloTour"_qs);
        const QString base = dossier.filePath(u"VarloBase.mdb"_qs);
        ASSERT_TRUE(QFile::copy(QStringLiteral(VARLOTOUR_PROGRAMME), programme));
        ASSERT_TRUE(QFile::copy(QStringLiteral(VARLOTOUR_BASE), base));
        ASSERT_TRUE(QFile::copy(QStringLiteral(VARLOTOUR_ICONE), dossier.filePath(u"1.ico"_qs)));
        QProcess action;
        action.start(programme, {});
        const QString copies = dossier.filePath(u"sauvegardes"_qs);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !QDir(copies).entryList({u"*.mdb"_qs}).isEmpty(); }, 20000));
        ASSERT_TRUE(QFile::exists(base + u"-shm"_qs));
        ::kill(pid_t(action.processId()), signal);
        ASSERT_TRUE(action.waitForFinished());
        EXPECT_EQ(action.exitStatus(), QProcess::NormalExit) << signal;
        EXPECT_EQ(action.exitCode(), 0);
        EXPECT_FALSE(QFile::exists(base + u"-shm"_qs)) << "the base has not been closed";
    }
}
