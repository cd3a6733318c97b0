#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmora {

/// Clicks these buttons, one in each message box that opens during `act`. Returns the texts of the
/// boxes, each with its informative text behind it.
template <class Act>
std::vector<std::string> answering(const std::vector<QString>& answers, const Act& act)
{
    std::vector<std::string> texts;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || texts.size() >= answers.size())
            return;
        texts.push_back((box->text() + box->informativeText()).toStdString());
        for (QAbstractButton* button : box->buttons())
            if (button->text().remove('&') == answers[texts.size() - 1])
                button->click();
    });
    timer.start(5);
    act();
    EXPECT_EQ(texts.size(), answers.size());
    return texts;
}

} // namespace velmora
