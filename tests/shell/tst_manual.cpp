// The manual as the user meets it: laid beside the program as the build lays
// it (Cartomar.hlp with its pictures in Help/images), opened by the main
// screen's Help button in the program's help viewer, every picture it shows
// loading, and every link of its contents leading somewhere.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPixmap>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextImageFormat>

#include "screens/platform/ProcessEnd.h"
#include "screens/shell/Startup.h"
#include "screens/shell/frmHelpViewer.h"
#include "screens/shell/frmMainScreen.h"
#include "support/ScreenTest.h"

namespace {

// The manual in the source tree.
QString SourceHelpFolder() { return QStringLiteral(CARTOMAR_SOURCE_HELP); }

// The image names the document shows, in order.
QStringList ImagesOf(const QTextDocument& document) {
    QStringList names;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto it = block.begin(); !it.atEnd(); ++it)
            if (it.fragment().charFormat().isImageFormat()) names << it.fragment().charFormat().toImageFormat().name();
    return names;
}

QImage AsImage(const QVariant& resource) {
    if (resource.canConvert<QImage>() && !resource.value<QImage>().isNull()) return resource.value<QImage>();
    if (resource.canConvert<QPixmap>() && !resource.value<QPixmap>().isNull())
        return resource.value<QPixmap>().toImage();
    return QImage::fromData(resource.toByteArray());
}

}  // namespace

class TestManual : public QObject {
    Q_OBJECT
    QTemporaryDir dir_;

private slots:
    void initTestCase() {
        MsgBoxScript::Enable();
        SetEndProcessHook([](int) {});
        // Laid out as the build lays the program folder.
        const QDir help(SourceHelpFolder());
        QVERIFY(
            QFile::copy(help.filePath(QStringLiteral("Cartomar.hlp")), dir_.filePath(QStringLiteral("Cartomar.hlp"))));
        QVERIFY(QDir(dir_.path()).mkpath(QStringLiteral("Help/images")));
        const QStringList pictures = QDir(help.filePath(QStringLiteral("images"))).entryList({QStringLiteral("*.png")});
        QVERIFY(!pictures.isEmpty());
        for (const QString& png : pictures)
            QVERIFY(QFile::copy(help.filePath(QStringLiteral("images/") + png),
                                dir_.filePath(QStringLiteral("Help/images/") + png)));
        Fixtures::StandUpFrame(dir_.path());
    }

    void helpShowsTheManualWithItsPictures() {
        MsgBoxScript::Clear();
        Get<frmMainScreen>().lblButton_Click(9);
        QVERIFY(MsgBoxScript::History().isEmpty() && IsLoaded<frmHelpViewer>());
        frmHelpViewer& viewer = Get<frmHelpViewer>();
        QTextDocument& document = *viewer.txtHelp->document();
        const QString text = document.toPlainText();
        for (const char* heading : {"Making a reading", "Keeping a diary", "Decks and cards", "Spreads", "Packages"})
            QVERIFY2(text.contains(QLatin1String(heading)), heading);

        // Every picture the manual names loads as a picture of a screen, not
        // as the broken-image mark.
        const QStringList images = ImagesOf(document);
        QVERIFY(images.size() >= 10);
        for (const QString& name : images) {
            const QImage image = AsImage(document.resource(QTextDocument::ImageResource, QUrl(name)));
            QVERIFY2(!image.isNull(), qPrintable(name));
            QVERIFY2(image.width() > 200 && image.height() > 150, qPrintable(name));
            // Shown at its own size, it fits the viewer without scrolling sideways.
            QVERIFY2(image.width() < viewer.txtHelp->viewport()->width(), qPrintable(name));
        }
        QVERIFY(images.contains(QStringLiteral("Help/images/main-screen.png")));
        QTest::keyClick(viewer.txtHelp, Qt::Key_Escape);  // Esc closes the viewer
        QVERIFY(!IsLoaded<frmHelpViewer>());
        QVERIFY(Get<frmMainScreen>().Visible());
    }

    void contentsLinksLeadToSections() {
        QFile manual(dir_.filePath(QStringLiteral("Cartomar.hlp")));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(manual.readAll());
        QSet<QString> anchors;
        for (const auto& m : QRegularExpression(QStringLiteral("<a name=\"([^\"]+)\"")).globalMatch(html))
            anchors << m.captured(1);
        const auto links = QRegularExpression(QStringLiteral("href=\"#([^\"]+)\"")).globalMatch(html);
        int count = 0;
        for (const auto& m : links) {
            QVERIFY2(anchors.contains(m.captured(1)), qPrintable(m.captured(1)));
            ++count;
        }
        QVERIFY(count >= 14);
    }
};

QTEST_MAIN(TestManual)
#include "tst_manual.moc"
