#include "screens/packages/PackageSummary.h"

#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/platform/Twips.h"
#include "screens/shell/ScreenPlacement.h"

namespace {
QRect At(int left, int top, int width, int height) {
    return QRect(TwipsToPixels(left), TwipsToPixels(top), TwipsToPixels(width), TwipsToPixels(height));
}
constexpr int RowPitch = 480;
constexpr int FirstFieldTop = 720;
}  // namespace

PackageSummaryScreen::PackageSummaryScreen(const QString& caption, const QString& message, int firstRow) {
    setCaption(caption);
    Label1 = new QLabel(message, this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setGeometry(At(240, 240, 5400, 330));
    txtDecksCount = AddField(tr("Decks:"), "txtDecksCount", firstRow);
    txtSpreadsCount = AddField(tr("Spreads:"), "txtSpreadsCount", firstRow + 1);
    txtAttachment = AddField(tr("Attachment:"), "txtAttachment", firstRow + 2);
    const int bottom = FirstFieldTop + (firstRow + 3) * RowPitch;
    cmdCancel = new QPushButton(tr("&Close"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setGeometry(At(4200, bottom + 120, 1440, 400));
    resize(TwipsToPixels(5880), TwipsToPixels(bottom + 720));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
}

QLineEdit* PackageSummaryScreen::AddField(const QString& label, const char* name, int row) {
    const int top = FirstFieldTop + row * RowPitch;
    auto* caption = new QLabel(label, this);
    caption->setGeometry(At(240, top, 1200, 330));
    auto* box = new QLineEdit(this);
    box->setObjectName(QLatin1String(name));
    box->setReadOnly(true);
    box->setGeometry(At(1440, top, 4200, 330));
    return box;
}

void PackageSummaryScreen::Form_Load() { CentreInFrame(*this); }

void PackageSummaryScreen::ShowCounts(int decks, int spreads) {
    txtDecksCount->setText(QString::number(decks));
    txtSpreadsCount->setText(QString::number(spreads));
}

void frmCreatePackageSummary::ShowPackageFile(const QString& fileName, const QString& folder) {
    txtFilename->setText(fileName);
    txtLocation->setText(folder);
    setCaption(tr("Package Summary - %1").arg(fileName));
}

void PackageSummaryScreen::SetAttachment(bool present, const QString& name) {
    QFont font = txtAttachment->font();
    font.setItalic(!present);
    txtAttachment->setFont(font);
    txtAttachment->setText(present ? name : tr("NONE"));
}

void PackageSummaryScreen::cmdCancel_Click() { Unload(); }

void PackageSummaryScreen::Form_KeyUp(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key != Qt::Key_Escape) return;
    handled = true;
    cmdCancel_Click();
}

frmPackageSummary::frmPackageSummary()
    : PackageSummaryScreen(tr("Package Summary"), tr("The package was successfully installed."), 0) {
    setObjectName(QStringLiteral("frmPackageSummary"));
}

void frmPackageSummary::UpdateInfo() {
    if (txtDecksCount->text() != QLatin1String("0") || txtSpreadsCount->text() != QLatin1String("0")) return;
    QPalette p = Label1->palette();
    p.setColor(QPalette::WindowText, QColor(255, 0, 0));
    Label1->setPalette(p);
    Label1->setText(tr("No elements of this package were installed."));
}

frmCreatePackageSummary::frmCreatePackageSummary()
    : PackageSummaryScreen(tr("Package Summary"), tr("The package was successfully created."), 2) {
    setObjectName(QStringLiteral("frmCreatePackageSummary"));
    txtLocation = AddField(tr("Location:"), "txtLocation", 0);
    txtFilename = AddField(tr("File name:"), "txtFilename", 1);
}
