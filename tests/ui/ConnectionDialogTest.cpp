#include "ui/ConnectionDialog.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

class ConnectionDialogTest : public testing::Test {
protected:
    /// Turns to a page of the dialog and types into its fields.
    void fillIn(int page, const QStringList& texts) {
        auto* const tabs = m_dialog.findChild<QTabWidget*>();
        tabs->setCurrentIndex(page);
        const auto edits = tabs->currentWidget()->findChildren<QLineEdit*>();
        ASSERT_EQ(edits.size(), texts.size());
        for (qsizetype i = 0; i < texts.size(); ++i) {
            edits[i]->clear();
            QTest::keyClicks(edits[i], texts[i]);
            EXPECT_EQ(edits[i]->displayText() == texts[i],
                      !edits[i]->objectName().contains(u"Password") || texts[i].isEmpty());
        }
    }

    /// Submits, by mouse or by Return in the last field, and tells what came of it: a box's
    /// "title|text" or the arguments of the signal.
    QString submit(int page, bool byMouse) {
        QSignalSpy login(&m_dialog, &ConnectionDialog::loginRequested);
        QSignalSpy registration(&m_dialog, &ConnectionDialog::registerRequested);
        auto* const current = m_dialog.findChild<QTabWidget*>()->currentWidget();
        if (byMouse) {
            QTest::mouseClick(current->findChild<QPushButton*>(), Qt::LeftButton);
        } else {
            QTest::keyClick(current->findChildren<QLineEdit*>().last(), Qt::Key_Return);
        }
        QStringList outcome;
        for (const QList<QVariant>& arguments : (page == 0 ? login : registration)) {
            outcome << QVariant(arguments).toStringList().join(u'|');
        }
        for (auto* const box : m_dialog.findChildren<QMessageBox*>()) {
            outcome << box->windowTitle() + u'|' + box->text();
            QTest::keyClick(box, Qt::Key_Return);
            QCoreApplication::sendPostedEvents(box, QEvent::DeferredDelete);
        }
        EXPECT_TRUE((page == 0 ? registration : login).isEmpty());
        return outcome.join(u'\n');
    }

    ConnectionDialog m_dialog;
};

TEST_F(ConnectionDialogTest, HandsOverWhatIsComplete) {
    constexpr int kLogin = 0;
    constexpr int kRegister = 1;
    const QString incomplete = u"Error|Please fill in username and password."_s;
    const QString tooShort = u"Error|Password must be at least 8 characters."_s;
    const std::tuple<int, QStringList, QString> cases[] = {
        {kLogin, {u"ann"_s, u""_s}, u"Error|Please fill in all fields."_s},
        {kLogin, {u""_s, u"abc"_s}, u"Error|Please fill in all fields."_s},
        {kLogin, {u" ann"_s, u"abc"_s}, u" ann|abc"_s},
        {kRegister, {u"ann"_s, u""_s, u"box"_s}, incomplete},
        {kRegister, {u"ann"_s, u"1234567"_s, u"box"_s}, tooShort},
        {kRegister, {u"ann"_s, u"1234567 "_s, u""_s}, u"ann|1234567 |"_s},
        {kRegister, {u"ann"_s, u"12345678"_s, u" box "_s}, u"ann|12345678| box "_s},
    };
    m_dialog.show();
    bool byMouse = false;
    for (const auto& [page, typed, outcome] : cases) {
        byMouse = !byMouse;
        fillIn(page, typed);
        EXPECT_EQ(submit(page, byMouse), outcome) << typed.join(u'|').toStdString();
        EXPECT_TRUE(m_dialog.isVisible());
    }
}

} // namespace
} // namespace corvane
