#include "desktop/ports/qt_media_players.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/private_bus.h"
#include "desktop/scripted_player.h"

namespace horavex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class QtMediaPlayersTest : public PrivateBus {
protected:
    void PauseAll() {
        players.PauseAll();
        Settle();
    }

    void GoOn() {
        players.GoOn();
        Settle();
    }

    ScriptedPlayer music{Connect("music"), "music", "Playing"};
    ScriptedPlayer film{Connect("film"), "film", "Playing"};
    ScriptedPlayer radio{Connect("radio"), "radio", "Paused"};
    QtMediaPlayers players{Connect("client")};
};

TEST_F(QtMediaPlayersTest, ThoseThatPlayPauseAndGoOnAndTheOthersAreLeftAlone) {
    PauseAll();
    EXPECT_EQ(music.status, "Paused");
    EXPECT_EQ(film.status, "Paused");
    GoOn();
    EXPECT_EQ(music.status, "Playing");
    EXPECT_EQ(film.status, "Playing");
    EXPECT_THAT(radio.calls, ElementsAre("Get"));
}

TEST_F(QtMediaPlayersTest, WhoWasNotPausedDoesNotGoOn) {
    GoOn();
    EXPECT_THAT(radio.calls, testing::IsEmpty());
}

TEST_F(QtMediaPlayersTest, OneThatDoesNotAnswerHoldsNobodyUp) {
    music.isDead = true;
    PauseAll();
    EXPECT_EQ(film.status, "Paused");
    GoOn();
    EXPECT_EQ(film.status, "Playing");
    EXPECT_THAT(music.calls, ElementsAre("Get"));
}

TEST_F(QtMediaPlayersTest, AnswerThatComesAfterTheEndPausesNobody) {
    music.isDead = true;
    PauseAll();
    GoOn();
    music.ComeAlive();
    Settle();
    EXPECT_THAT(music.calls, ElementsAre("Get"));
}

TEST_F(QtMediaPlayersTest, EndBeforeAllAnswersLeavesNobodyPaused) {
    players.PauseAll();
    GoOn();
    EXPECT_EQ(music.status, "Playing");
    EXPECT_THAT(music.calls, Not(Contains("Pause")));
}

TEST_F(QtMediaPlayersTest, OneThatHasNotYetPausedGoesOnRightBehindThePause) {
    music.diesBehind = "Get";
    PauseAll();
    ASSERT_THAT(music.calls, ElementsAre("Get", "Pause"));
    GoOn();
    music.ComeAlive();
    EXPECT_EQ(music.status, "Playing");
    EXPECT_THAT(music.calls, ElementsAre("Get", "Pause", "Play"));
}

TEST_F(QtMediaPlayersTest, OneThatTheUserHasStoppedStaysStopped) {
    PauseAll();
    music.status = "Stopped";
    GoOn();
    EXPECT_EQ(music.status, "Stopped");
    EXPECT_EQ(film.status, "Playing");
}

TEST_F(QtMediaPlayersTest, OneThatTheUserHasStartedAndPausedAgainStaysPaused) {
    PauseAll();
    music.Become("Playing");
    music.Become("Paused");
    Settle();
    GoOn();
    EXPECT_EQ(music.status, "Paused");
    EXPECT_THAT(music.calls, Not(Contains("Play")));
}

TEST_F(QtMediaPlayersTest, WhatAPlayerTellsBeforeItPausesIsNotTheUsersDoing) {
    music.diesBehind = "Get";
    PauseAll();
    music.Become("Playing");
    music.ComeAlive();
    Settle();
    EXPECT_EQ(music.status, "Paused");
    GoOn();
    EXPECT_EQ(music.status, "Playing");
}

TEST_F(QtMediaPlayersTest, OneThatIsGoneIsForgotten) {
    {
        ScriptedPlayer game(Connect("game"), "game", "Playing");
        PauseAll();
        ASSERT_EQ(game.status, "Paused");
        QDBusConnection::disconnectFromBus(QStringLiteral("game"));
    }
    ScriptedPlayer game(Connect("game 2"), "game", "Paused");
    GoOn();
    EXPECT_THAT(game.calls, testing::IsEmpty());
    EXPECT_EQ(music.status, "Playing");
}

TEST_F(QtMediaPlayersTest, SecondPauseAddsToTheFirst) {
    PauseAll();
    radio.status = "Playing";
    PauseAll();
    EXPECT_EQ(radio.status, "Paused");
    GoOn();
    EXPECT_EQ(radio.status, "Playing");
    EXPECT_EQ(music.status, "Playing");
}

TEST_F(QtMediaPlayersTest, PauseRightBehindAnEndKeepsThemPausedUntilTheNextEnd) {
    PauseAll();
    players.GoOn();
    PauseAll();
    EXPECT_EQ(music.status, "Paused");
    EXPECT_THAT(music.calls, Not(Contains("Play")));
    GoOn();
    EXPECT_EQ(music.status, "Playing");
}

TEST_F(QtMediaPlayersTest, OneOfTwoNamesIsPausedOnce) {
    Connect("music").registerService(QStringLiteral("org.mpris.MediaPlayer2.music.instance1"));
    PauseAll();
    EXPECT_EQ(std::count(music.calls.begin(), music.calls.end(), "Pause"), 1);
    GoOn();
    EXPECT_EQ(std::count(music.calls.begin(), music.calls.end(), "Play"), 1);
}

TEST_F(QtMediaPlayersTest, OneThatSpeaksForOthersIsNoPlayer) {
    ScriptedPlayer deputy(Connect("deputy"), "playerctld", "Playing");
    PauseAll();
    EXPECT_THAT(deputy.calls, testing::IsEmpty());
}

TEST_F(QtMediaPlayersTest, EndOfTheProgramWaitsForNoAnswer) {
    PauseAll();
    film.Become("Stopped");
    Settle();
    players.GoOn();
    players.GoOnAtOnce();
    Settle();
    EXPECT_EQ(music.status, "Playing");
    EXPECT_EQ(film.status, "Stopped");
    EXPECT_THAT(radio.calls, ElementsAre("Get"));
}

TEST_F(QtMediaPlayersTest, WithoutABusNothingHappens) {
    QtMediaPlayers none{QDBusConnection(QStringLiteral("none"))};
    none.PauseAll();
    QCoreApplication::processEvents();
    none.GoOn();
    QCoreApplication::processEvents();
    none.GoOnAtOnce();
}

}  // namespace
}  // namespace horavex
