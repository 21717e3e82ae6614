// SPDX-License-Identifier: MIT
//
// Tries Vesk with many real applications and records what works in which of them.
#include "reach/applicationtrial.h"
#include "virtualdesktop/guard.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

void say(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

/// The results for one application, ready to be written.
struct Row
{
    QString name;
    QStringList cells;
    /// What has failed, except for the application's known limits.
    QStringList faults;
    /// Why a cell says no.
    QStringList remarks;
};

Row tryOut(const ApplicationCase &application, const QString &pictures)
{
    Row row{.name = application.name, .cells = {}, .faults = {}, .remarks = {}};
    QString problem;
    const auto findings = ApplicationTrial(application, pictures).run(problem);
    if (!findings) {
        row.cells = QStringList(allChecks().size(), u"?"_s);
        row.faults = row.remarks = {problem};
        return row;
    }
    for (const auto &[check, name] : allChecks()) {
        const QString finding = findings->value(check);
        const QString limit = application.limits.value(check);
        if (!findings->contains(check)) {
            row.cells.append(u"–"_s);
        } else if (finding.isEmpty()) {
            row.cells.append(u"yes"_s);
            if (!limit.isEmpty())
                say(u"   %1 works, although it is listed as a limit"_s.arg(name));
        } else {
            row.cells.append(limit.isEmpty() ? u"**no**"_s : u"no"_s);
            row.remarks.append(name + u": "_s + (limit.isEmpty() ? finding : limit));
            if (limit.isEmpty())
                row.faults.append(name + u": "_s + finding);
        }
    }
    return row;
}

QString tableOf(const QList<Row> &rows)
{
    QStringList names;
    for (const auto &[check, name] : allChecks())
        names.append(name);
    const auto line = [](const QStringList &cells) { return u"| "_s + cells.join(u" | "_s) + u" |\n"_s; };
    QString text =
        u"# What works in which application\n\n"
        "Made by `./dev reach`, which tries each promise with real keys in the real application. Not to "
        "be edited.\n\n"_s;
    text += line(QStringList{u"application"_s} + names);
    text += line(QStringList(names.size() + 1, u"---"_s));
    QString remarks;
    for (const Row &row : rows) {
        text += line(QStringList{row.name} + row.cells);
        for (const QString &remark : row.remarks)
            remarks += u"- %1, %2.\n"_s.arg(row.name, remark);
    }
    text += u"\n“–” is what the application has no use for; **no** is a fault, no a known limit.\n"_s;
    return remarks.isEmpty() ? text : text + u"\n"_s + remarks;
}

/// Tries the applications whose names contain `part`, and prints what was found. Writes the file only if
/// `part` is empty.
int run(const QString &file, const QString &pictures, const QString &part)
{
    QList<Row> rows;
    bool isSound = true;
    const QList<ApplicationCase> applications = lightApplications() + heavyApplications();
    for (const ApplicationCase &application : applications) {
        if (!application.name.contains(part, Qt::CaseInsensitive))
            continue;
        say(u"-- "_s + application.name);
        rows.append(tryOut(application, pictures));
        for (const QString &remark : std::as_const(rows.last().remarks))
            say(u"   "_s + remark);
        isSound = isSound && rows.last().faults.isEmpty();
    }
    if (part.isEmpty()) {
        QFile output(file);
        if (!output.open(QIODevice::WriteOnly) || output.write(tableOf(rows).toUtf8()) < 0) {
            say(u"%1 cannot be written"_s.arg(file));
            return 1;
        }
    }
    say(isSound ? u"All that is promised holds."_s : u"Not all that is promised holds."_s);
    return isSound && !rows.isEmpty() ? 0 : 1;
}

} // namespace

} // namespace vesk

int main(int argc, char **argv)
{
    return vesk::runGuarded([&] {
        const QCoreApplication application(argc, argv);
        const QStringList arguments = QCoreApplication::arguments();
        if (arguments.size() < 3 || arguments.size() > 4) {
            std::fprintf(stderr, "Usage: vesk-reach <table.md> <folder for pictures> [part of a name]\n");
            return 2;
        }
        return vesk::run(arguments.at(1), arguments.at(2), arguments.value(3));
    });
}
