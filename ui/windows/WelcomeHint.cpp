#include "ui/windows/WelcomeHint.h"

#include <QHBoxLayout>

#include "ui/FirstSteps.h"
#include "ui/windows/FormParts.h"
#include "ui/windows/Identify.h"
#include "ui/windows/Labels.h"

namespace Ledgrove {

namespace {

QString Words(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

WelcomeHint::WelcomeHint(QWidget* parent)
    : QWidget(parent)
    , m_sentence(TextLabel({}))
    , m_go(MakeButton("bNextStep", "See the Results"))
    , m_sample(MakeButton("bSample", "Look at a Sample")) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 8, 0, 0);
    MakeBold(*m_sentence);
    m_sentence->setObjectName("lblNextStep");
    row->addWidget(m_sentence);
    row->addSpacing(12);
    row->addWidget(m_go);
    row->addWidget(m_sample);
    row->addStretch();
    KeepPlaceWhileHidden(*m_sample);
    m_sample->hide();
    connect(m_go, &QPushButton::clicked, this,
            [this] { emit Chosen(Words(NextFirstStep(*m_screen).Control)); });
}

void WelcomeHint::Connect(const MainScreen& screen, std::function<void()> openSample) {
    m_screen = &screen;
    if (openSample)
        connect(m_sample, &QPushButton::clicked, this, std::move(openSample));
    else
        m_sample->setEnabled(false);
}

void WelcomeHint::Refresh() {
    const FirstStep step = NextFirstStep(*m_screen);
    m_sentence->setText(Words(step.Sentence));
    m_go->setText(Words(step.Button));
    SetSpokenName(*m_go, Words(step.Button));
    m_sample->setVisible(m_sample->isEnabled() && IsUntouched(*m_screen));
}

} // namespace Ledgrove
