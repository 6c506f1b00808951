// The sound of the alarm: the same bytes everywhere, those that were listened to.

#include "commun/fichiers_essai.h"

#include <QCryptographicHash>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(Creeson, UneClochePcmToujoursLaMeme)
{
    QTemporaryDir dossier;
    const QString nom = dossier.filePath(QStringLiteral("drelin.WAV"));
    ASSERT_EQ(QProcess::execute(QStringLiteral(PROGRAMME_CREESON), {nom}), 0);
    EXPECT_EQ(QCryptographicHash::hash(octetsDe(nom), QCryptographicHash::Sha256).toHex(),
              "d9c7e8fc06b55070deeb5010073e842c87eabf1a070f91e4a7041c0cf42c313a");
}
