#include "app/MainMenu.h"
#include "app/MainWindow.h"
#include "app/MessageLine.h"
#include "app/PictureSizeDialog.h"
#include "app/Tessaly.h"
#include "canvas/qt/CanvasView.h"
#include "exchange/Readers.h"
#include "foundation/Utf8.h"
#include "presets/qt/PresetPanel.h"
#include "sourceview/qt/CustomTextView.h"
#include "sourceview/qt/SourceView.h"
#include "support/Eventually.h"
#include "support/TemporaryFolder.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QImage>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

namespace tessaly {
namespace {

class SavingTest : public testing::Test {
  protected:
    SavingTest() { window.show(); }

    QAction& item(Command command) { return views.menu->actionOf(command); }
    QString message() const { return views.message->accessibleDescription(); }
    std::string code() const { return toUtf8(views.stylesheet->textView().text()); }

    /// Answers the file dialog that is open.
    std::filesystem::path answer(const char* name) {
        auto* const dialog = window.findChild<QFileDialog*>();
        const std::filesystem::path path = temporary.path / name;
        Q_EMIT dialog->fileSelected(QString::fromStdString(path.string()));
        delete dialog;
        return path;
    }
    void whenSaved(const QString& name) {
        EXPECT_TRUE(eventually([&] { return message() == QStringLiteral("Saved in %1").arg(name); }))
            << message().toStdString();
    }

    TemporaryFolder temporary;
    Tessaly program{temporary.path, temporary.path};
    MainWindow& window = program.mainWindow();
    const MainWindow::Views& views = window.views();
};

TEST_F(SavingTest, copiesTheFormsOnOneLine) {
    item(Command::CopyStandardDeclaration).trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("background: linear-gradient(to right, #000000 0%, #ffffff 100%);"));
    EXPECT_EQ(message(), QStringLiteral("Copied the standard declaration"));
    item(Command::DeleteStop).trigger();
    views.canvas->setFocus();
    QTest::keyClick(views.canvas, Qt::Key_Tab); // the other stop
    item(Command::DeleteStop).trigger();
    EXPECT_FALSE(item(Command::CopyStandardValue).isEnabled()) << "of no stops";
}

TEST_F(SavingTest, aFileFollowsTheStylesheetUntilOthersChangeIt) {
    item(Command::SaveOnEveryChange).trigger();
    EXPECT_FALSE(item(Command::SaveOnEveryChange).isChecked()) << "not before there is a file";
    const std::filesystem::path file = answer("page.css");
    whenSaved(QStringLiteral("page.css"));
    EXPECT_TRUE(item(Command::SaveOnEveryChange).isChecked());
    item(Command::Reverse).trigger();
    EXPECT_TRUE(eventually([&] { return contentsOf(file) == code(); }));
    views.stylesheet->textView().textCursor().insertText(QStringLiteral("/* ä */"));
    EXPECT_TRUE(eventually([&] { return contentsOf(file) == code(); })) << "what the user typed, too";

    std::ofstream{file} << "theirs";
    const QPoint marker = views.canvas->accessibleItemRect(0).center();
    QTest::mousePress(views.canvas, Qt::LeftButton, {}, marker);
    QTest::mouseMove(views.canvas, marker + QPoint{40, 0});
    EXPECT_TRUE(eventually([&] { return !item(Command::SaveOnEveryChange).isChecked(); }));
    QTest::mouseRelease(views.canvas, Qt::LeftButton, {}, marker + QPoint{40, 0});
    EXPECT_EQ(
        message(),
        QStringLiteral("page.css was not saved: Changed by another program; Save Stylesheet As replaces it"));
    item(Command::SaveStylesheet).trigger();
    EXPECT_EQ(contentsOf(file), "theirs");
    item(Command::SaveStylesheetAs).trigger(); // the user has said so
    answer("page.css");
    EXPECT_EQ(contentsOf(file), code());
}

TEST_F(SavingTest, theLastChangeIsSavedAtTheEnd) {
    std::filesystem::path file;
    std::string last;
    {
        Tessaly other{temporary.path, temporary.path / "other"};
        MainMenu& menu = *other.mainWindow().views().menu;
        menu.actionOf(Command::SaveOnEveryChange).trigger();
        auto* const dialog = other.mainWindow().findChild<QFileDialog*>();
        file = temporary.path / "last.css";
        Q_EMIT dialog->fileSelected(QString::fromStdString(file.string()));
        menu.actionOf(Command::Reverse).trigger();
        last = toUtf8(other.mainWindow().views().stylesheet->textView().text());
    }
    EXPECT_EQ(contentsOf(file), last);
}

TEST_F(SavingTest, exportsPicturesOfAnySizeByTheirName) {
    struct Case {
        const char* name;
        QString told;
    };
    for (const Case& row :
         {Case{"a.png", QStringLiteral("Saved in a.png")}, Case{"b.SVG", QStringLiteral("Saved in b.SVG")},
          Case{"c.jpg", QStringLiteral("Saved in c.jpg.png")},
          Case{"no/d.png", QStringLiteral("d.png was not saved: No such file or directory")}}) {
        item(Command::ExportPicture).trigger();
        auto* const dialog = window.findChild<PictureSizeDialog*>();
        const QList<QSpinBox*> sides = dialog->findChildren<QSpinBox*>();
        EXPECT_EQ(sides[0]->value(), row.name == std::string{"a.png"} ? 1920 : 30) << "remembered";
        sides[0]->setValue(30);
        sides[1]->setValue(20);
        for (QPushButton* const button : dialog->findChildren<QPushButton*>()) {
            if (button->isDefault()) {
                button->click();
            }
        }
        answer(row.name);
        EXPECT_TRUE(eventually([&] { return message() == row.told; })) << message().toStdString();
    }
    EXPECT_EQ(QImage{QString::fromStdString((temporary.path / "a.png").string())}.size(), (QSize{30, 20}));
    EXPECT_EQ(QImage{QString::fromStdString((temporary.path / "c.jpg.png").string())}.size(),
              (QSize{30, 20}));
    EXPECT_EQ(readGradients(contentsOf(temporary.path / "b.SVG")).gradients.front().gradient,
              Gradient({{0.0, Color::black()}, {1.0, Color::white()}}));
}

TEST_F(SavingTest, exportsThePresetsThatThereAre) {
    EXPECT_FALSE(item(Command::ExportPresets).isEnabled());
    for (int i = 0; i < 2; ++i) {
        window.findChild<QPushButton*>(QStringLiteral("addPreset"))->click();
        item(Command::Reverse).trigger();
    }
    for (const char* const name : {"presets.css", "presets.svg"}) {
        item(Command::ExportPresets).trigger();
        const std::filesystem::path file = answer(name);
        whenSaved(QString::fromLatin1(name));
        EXPECT_EQ(readGradients(contentsOf(file)).gradients.size(), 2U) << name;
    }
}

} // namespace
} // namespace tessaly
