// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/DisclosureTriangleWithResize.h"

#include "platform/layouts/SectionBox.h"
#include "platform/preferences/Preferences.h"
#include "tests/platform/PrivateBus.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr PreferenceKey<bool> kKey{QLatin1String("TriangleOpen"), true};

/// Three sections, one above the other, in a window's content.
class DisclosureTriangleWithResizeTest : public testing::Test {
protected:
    struct Section {
        SectionBox* box;
        DisclosureTriangleWithResize* triangle;
        QLineEdit* field;
    };

    DisclosureTriangleWithResizeTest() {
        Preferences::standard()->registerKey(kKey);
        int y = 0;
        for (int i = 0; i < 3; ++i) {
            auto* box = new SectionBox(&content_);
            auto* view = new QWidget(box);
            sections_.append({box, new DisclosureTriangleWithResize, new QLineEdit});
            if (i == 1)
                sections_[i].triangle->setProperty("binding", QString(kKey.name));
            auto* layout = new QVBoxLayout(view);
            layout->addWidget(sections_[i].triangle);
            layout->addWidget(sections_[i].field);
            layout->activate();
            box->setGeometry(0, y, 200, box->sizeHint().height());
            y += box->height();
        }
        content_.resize(200, y);
        animate(0);
        content_.show();
        QApplication::processEvents();
    }
    ~DisclosureTriangleWithResizeTest() override { Preferences::standard()->remove(kKey); }

    /// Says how long the desktop's animations last.
    void animate(int milliseconds) {
        content_.setStyleSheet(u"* { widget-animation-duration: %1 }"_s.arg(milliseconds));
    }

    void awake() {
        for (const Section& each : sections_)
            each.triangle->awakeFromNib();
    }

    QList<int> tops() const { return {sections_[0].box->y(), sections_[1].box->y(), sections_[2].box->y()}; }

    QWidget content_;
    QList<Section> sections_;
};

} // namespace

TEST_F(DisclosureTriangleWithResizeTest, FoldsItsBoxAndCarriesTheOthersAlong) {
    awake();
    const auto& [box, triangle, field] = sections_[0];
    const QList<int> open = tops();
    const int height = content_.height();
    const int folded = static_cast<int>(triangle->largeHeight() - triangle->smallHeight());
    ASSERT_GT(folded, 0);
    triangle->click();
    EXPECT_EQ(tops(), (QList<int>{0, open[1] - folded, open[2] - folded}));
    EXPECT_EQ(content_.height(), height - folded);
    EXPECT_FALSE(field->isVisible()) << "what is folded away takes no focus";
    triangle->click();
    EXPECT_EQ(content_.height(), height);
    EXPECT_TRUE(field->isVisible());
    sections_[2].triangle->click();
    EXPECT_EQ(tops(), open) << "what is above stays";
    EXPECT_EQ(content_.height(), height - folded);
}

TEST_F(DisclosureTriangleWithResizeTest, AnimatesItsFoldingWhereTheDesktopDoes) {
    animate(60);
    Preferences::standard()->set(kKey, false);
    awake();
    const auto& [box, triangle, field] = sections_[0];
    const auto* bound = sections_[1].triangle;
    EXPECT_EQ(bound->currentHeight(), bound->smallHeight()) << "at once while it is loaded";
    const float large = triangle->largeHeight();
    const int height = content_.height();

    triangle->click();
    ASSERT_TRUE(waitFor([&] { return triangle->currentHeight() < large; }));
    EXPECT_GT(triangle->currentHeight(), triangle->smallHeight());
    EXPECT_TRUE(field->isVisible());
    // Another section, and the same one again, before it is done.
    Preferences::standard()->set(kKey, true);
    triangle->click();
    triangle->click();
    ASSERT_TRUE(
        waitFor([&] { return !field->isVisible() && bound->currentHeight() == bound->largeHeight(); }));
    EXPECT_EQ(content_.height(), height) << "one has folded by what the other unfolded";
    content_.hide();
    triangle->click();
    EXPECT_EQ(triangle->currentHeight(), large) << "nobody sees it";
}

TEST_F(DisclosureTriangleWithResizeTest, ALargerContentIsNeverCutOff) {
    awake();
    const auto& [box, triangle, field] = sections_[0];
    const int before = box->height();
    const auto grow = [&](int by) {
        field->setMinimumHeight(field->sizeHint().height() + by);
        for (int i = 0; i < 3; ++i) // from the field to its view, and from there to the box
            QApplication::sendPostedEvents();
    };
    grow(30);
    EXPECT_EQ(box->height(), before + 30);
    EXPECT_EQ(sections_[1].box->y(), before + 30);
    triangle->click();
    grow(50);
    EXPECT_EQ(triangle->currentHeight(), triangle->smallHeight());
    triangle->click();
    EXPECT_EQ(box->height(), before + 50);
}
