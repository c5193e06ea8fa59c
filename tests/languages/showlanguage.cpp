// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "data/clockdata.h"
#include "platform/ringer/texts/ringtexts.h"
#include "platform/toolkit/application.h"
#include "tests/languages/languagetour.h"
#include "tests/support/alarms.h"

#include <QTextStream>

/**
 * showlanguage LANGUAGE FOLDER: shows all there is in the language that the environment asks for, keeps pictures in the
 * folder, and prints what is cut off, a line each. Needs a bus with an alarm daemon that has no alarms yet.
 */
int main(int argc, char **argv)
{
    initClockData();
    Touch::Application application(argc, argv, QStringLiteral("clock"));
    RingTexts::install();
    const QStringList arguments = application.arguments();
    QTextStream output(stdout);
    if (arguments.size() != 3) {
        output << "usage: showlanguage LANGUAGE FOLDER\n";
        return 2;
    }
    LanguageTour tour(arguments[1], QDir(arguments[2]));
    tour.visitMainPage();
    tour.visitEditor();
    tour.visitQuestions();
    tour.visitOptions();
    tour.visitRingScreens();
    const bool isClean = Support::removeAllAlarms();
    for (const QString &finding : tour.findings())
        output << finding << '\n';
    return isClean ? 0 : 1;
}
