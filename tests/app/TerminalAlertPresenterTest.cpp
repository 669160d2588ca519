#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "TerminalAlertPresenter.h"

using namespace ComQuorvantVelmar_Plugin;
using OstrinFlowCommand::AnswerPolicy;
using OstrinFlowCommand::TerminalAlertPresenter;

namespace {

// What a presenter wrote, read back from an in-memory stream.
class Output {
public:
    Output() : _stream(::open_memstream(&_buffer, &_size)) {}
    ~Output() {
        std::fclose(_stream);
        std::free(_buffer);
    }
    std::FILE* stream() { return _stream; }
    std::string text() {
        std::fflush(_stream);
        return std::string(_buffer, _size);
    }

private:
    char* _buffer = nullptr;
    std::size_t _size = 0;
    std::FILE* _stream;
};

AlertRequest question() {
    AlertRequest request;
    request.messageText = "Change the output tray?";
    request.informativeText = "Stapling needs the finisher tray.\rThe tray will be changed.\r";
    request.buttons = {"Yes", "No"};
    return request;
}

}  // namespace

TEST(TerminalAlertPresenter, MessagesPrintTheirLinesAndAnswerOk) {
    Output output;
    std::istringstream input;
    TerminalAlertPresenter presenter(AnswerPolicy::No, true, input, output.stream());
    AlertRequest message = question();
    message.buttons = {"OK"};
    EXPECT_EQ(presenter.runModal(message), AlertFirstButtonReturn);
    EXPECT_EQ(output.text(),
              "Change the output tray?\nStapling needs the finisher tray.\nThe tray will be changed.\n");
}

TEST(TerminalAlertPresenter, AtATerminalTheUserChoosesByNumber) {
    Output output;
    std::istringstream input("2\n\nmaybe\n7\n1\n");
    TerminalAlertPresenter presenter(AnswerPolicy::No, true, input, output.stream());
    EXPECT_EQ(presenter.runModal(question()), AlertSecondButtonReturn);
    EXPECT_EQ(presenter.runModal(question()), AlertFirstButtonReturn);  // an empty line takes the default
    EXPECT_EQ(presenter.runModal(question()), AlertFirstButtonReturn);  // after two unreadable answers
    EXPECT_NE(output.text().find("  [1] Yes\n  [2] No\nChoose 1-2 [1]: "), std::string::npos);
}

TEST(TerminalAlertPresenter, WithoutATerminalOrInputTheAnswerOptionDecides) {
    for (const bool terminal : {false, true}) {
        std::istringstream input(terminal ? "x\n" : "1\n");
        Output yesOutput;
        TerminalAlertPresenter yes(AnswerPolicy::Yes, terminal, input, yesOutput.stream());
        EXPECT_EQ(yes.runModal(question()), AlertFirstButtonReturn) << terminal;
        EXPECT_NE(yesOutput.text().find("(answered \"Yes\" by --answer yes)"), std::string::npos) << terminal;
        Output noOutput;
        TerminalAlertPresenter no(AnswerPolicy::No, terminal, input, noOutput.stream());
        EXPECT_EQ(no.runModal(question()), AlertSecondButtonReturn) << terminal;
        EXPECT_NE(noOutput.text().find("(answered \"No\" by --answer no)"), std::string::npos) << terminal;
    }
}
