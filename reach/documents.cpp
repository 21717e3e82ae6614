// SPDX-License-Identifier: MIT
#include "reach/documents.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// Paths of the pages on the server.
constexpr auto kPagePath = "/sample.html";
constexpr auto kInnerPath = "/inner.html";

/// Clicking anywhere on the page clicks the password field.
constexpr auto kPassword = "<input id=password type=password autofocus value='open sesame open sesame'"
                           " style='position: fixed; inset: 0; width: 100%; height: 90%; font-size: 60px'>";
/// Uses one of several ways, at once or a moment later. A click brings the focus back.
constexpr auto kRestlessness = R"(
<input id=other style='position: fixed; bottom: 0; left: 0'>
<script>
const ways = [() => password.blur(), () => other.focus(), () => { password.disabled = true; },
              () => { password.blur(); password.type = 'hidden'; }];
let turns = 0;
password.addEventListener('select', () => {
    if (document.activeElement !== password)
        return;
    const way = ways[(turns >> 1) % ways.length];
    setTimeout(way, turns % 2 ? 150 : 0);
    ++turns;
});
document.addEventListener('mousedown', () => {
    password.type = 'password';
    password.disabled = false;
}, true);
</script>)";

QByteArray page(const QByteArray &body)
{
    return "<!DOCTYPE html><html><head><title>sample</title></head><body style='font-size: 24px'>" + body
           + "</body></html>";
}

QByteArray bodyOf(Document kind)
{
    const QByteArray text = SampleDocument::lines().join(u'\n').toUtf8();
    switch (kind) {
    case Document::Field:
        return "<textarea autofocus style='position: fixed; inset: 0; width: 100%; height: 100%'>" + text
               + "</textarea>";
    case Document::Password:
        return kPassword;
    case Document::RestlessPassword:
        return QByteArray(kPassword) + kRestlessness;
    case Document::Frame:
        return QByteArray("<iframe style='position: fixed; inset: 0; width: 90%; height: 90%' src='")
               + kInnerPath + "'></iframe>";
    default:
        return "<p>" + SampleDocument::lines().join(u"</p><p>"_s).toUtf8() + "</p>";
    }
}

/// The lines on one page in a font that every PDF reader has.
QByteArray pdf()
{
    QByteArray drawing = "BT /F 24 Tf 60 700 Td 36 TL";
    for (const QString &line : SampleDocument::lines())
        drawing += " (" + line.toLatin1() + ") Tj T*";
    drawing += " ET";
    const QByteArray sheet = "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R"
                             " /Resources << /Font << /F 5 0 R >> >> >>";
    const QByteArrayList objects{
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        sheet,
        "<< /Length " + QByteArray::number(drawing.size()) + " >>\nstream\n" + drawing + "\nendstream",
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
    };
    QByteArray file = "%PDF-1.4\n";
    QByteArray places = "0000000000 65535 f \n";
    for (qsizetype index = 0; index < objects.size(); ++index) {
        places += QByteArray::number(file.size()).rightJustified(10, '0') + " 00000 n \n";
        file += QByteArray::number(index + 1) + " 0 obj\n" + objects.at(index) + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(objects.size() + 1);
    const QByteArray start = QByteArray::number(file.size());
    return file + "xref\n0 " + count + "\n" + places + "trailer\n<< /Size " + count
           + " /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
}

/// Keeps Firefox from showing its welcome pages.
constexpr auto kFirefoxSettings = R"(
user_pref("browser.aboutwelcome.enabled", false);
user_pref("browser.preonboarding.enabled", false);
user_pref("browser.startup.homepage_override.mstone", "ignore");
user_pref("browser.shell.checkDefaultBrowser", false);
user_pref("datareporting.policy.dataSubmissionEnabled", false);
user_pref("termsofuse.bypassNotification", true);
user_pref("toolkit.telemetry.reportingpolicy.firstRun", false);
)";

} // namespace

const QStringList &SampleDocument::lines()
{
    static const QStringList lines{u"Water the lemon tree on the balcony"_s,
                                   u"Ask about the train to Ghent"_s};
    return lines;
}

std::unique_ptr<SampleDocument> SampleDocument::make(VirtualDesktop &desktop, Document kind)
{
    std::unique_ptr<SampleDocument> document(new SampleDocument);
    static_cast<void>(desktop.writeFile(u"profile/user.js"_s, QString::fromLatin1(kFirefoxSettings)));
    switch (kind) {
    case Document::Text:
    case Document::Output:
        document->m_place = desktop.writeFile(u"sample.txt"_s, lines().join(u'\n') + u'\n');
        break;
    case Document::Pdf:
        document->m_place = desktop.writeFile(u"sample.pdf"_s, QString::fromLatin1(pdf()));
        break;
    case Document::FilePage:
        document->m_place = desktop.writeFile(u"sample.html"_s, QString::fromUtf8(page(bodyOf(kind))));
        break;
    default:
        document->m_server =
            PageServer::start({{kPagePath, page(bodyOf(kind))}, {kInnerPath, page(bodyOf(Document::Field))}});
        if (document->m_server)
            document->m_place = document->m_server->address(QString::fromLatin1(kPagePath));
    }
    return document->m_place.isEmpty() ? nullptr : std::move(document);
}

} // namespace vesk
