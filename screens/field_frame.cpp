#include "screens/field_frame.hpp"

#include "screens/refusal_label.hpp"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace kova::screens {

namespace {

constexpr int RoomBelowLabel = 2;

} // namespace

QString WithoutMnemonic(const QString& label) { return QString(label).remove(QLatin1Char('&')); }

FieldFrame::FieldFrame(const QString& label, QWidget* editor, QWidget* parent, bool isRequired)
    : QWidget(parent), editor_(editor), reason_(new RefusalLabel(this))
{
    auto* title = new QLabel(isRequired ? label + QStringLiteral(" *") : label, this);
    title->setBuddy(editor);
    title->setWordWrap(true);
    editor->setParent(this);
    if (auto* box = qobject_cast<QLineEdit*>(editor)) {
        box->setMinimumHeight(BoxHeight);
        box->setTextMargins(RoomBesideText, 0, RoomBesideText, 0);
    }
    editor->setAccessibleName(WithoutMnemonic(label)
                              + (isRequired ? QStringLiteral(" (obrigatório)") : QString()));
    setFocusProxy(editor);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(RoomBelowLabel);
    layout->addWidget(title);
    layout->addWidget(editor);
    layout->addWidget(reason_);
    layout->addStretch(1);
}

void FieldFrame::Refuse(const QString& reason)
{
    reason_->Show(reason);
    editor_->setAccessibleDescription(reason);
}

bool FieldFrame::IsRefused() const { return !reason_->isHidden(); }

} // namespace kova::screens
