#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QtGlobal>

#include <string>

namespace kova::qt::test {

/// A warning that the toolkit must give while this object lives; all others still fail the test.
class ExpectedWarning {
public:
    explicit ExpectedWarning(const char* text)
    {
        Awaited() = text;
        Former() = qInstallMessageHandler(&Take);
    }
    ~ExpectedWarning()
    {
        qInstallMessageHandler(Former());
        EXPECT_EQ(Awaited(), "") << "this warning did not come";
    }
    ExpectedWarning(const ExpectedWarning&) = delete;
    ExpectedWarning& operator=(const ExpectedWarning&) = delete;

private:
    static std::string& Awaited()
    {
        static std::string text;
        return text;
    }
    static QtMessageHandler& Former()
    {
        static QtMessageHandler handler = nullptr;
        return handler;
    }
    static void Take(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (text.toStdString() == Awaited())
            Awaited().clear();
        else if (Former())
            Former()(type, context, text);
    }
};

} // namespace kova::qt::test
