// SPDX-License-Identifier: MIT
#include "desktop/desktoptest.h"
#include "reach/applicationtrial.h"

using namespace Qt::StringLiterals;
using namespace vesk;

/// Vesk's promises about the frontmost application, tested with small applications of each toolkit. `./dev
/// reach` does the same with large ones.
class TestApplications : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void promisesHold_data();
    void promisesHold();
};

void TestApplications::promisesHold_data()
{
    QTest::addColumn<qsizetype>("index");
    const QList<ApplicationCase> applications = lightApplications();
    for (qsizetype index = 0; index < applications.size(); ++index)
        QTest::newRow(qPrintable(applications.at(index).name)) << index;
}

void TestApplications::promisesHold()
{
    QFETCH(const qsizetype, index);
    const ApplicationCase application = lightApplications().at(index);
    ApplicationTrial trial(application, qEnvironmentVariable("VESK_PICTURES"));
    QString problem;
    const std::optional<ApplicationTrial::Findings> findings = trial.run(problem);
    QVERIFY2(findings, qPrintable(problem));
    QStringList broken;
    for (const auto &[check, name] : allChecks()) {
        const QString finding = findings->value(check);
        if (!finding.isEmpty() && !application.limits.contains(check))
            broken.append(name + u": "_s + finding);
    }
    QVERIFY2(broken.isEmpty(), qPrintable(broken.join(u"; "_s)));
}

DESKTOP_TEST_MAIN(TestApplications)
#include "tst_applications.moc"
