#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

/**
 * A bad network between the program and the test cluster: a TCP port on 127.0.0.1 that hands everything on to the
 * server until it is told to do worse. It works on a thread of its own, also while the test's thread waits for the
 * server. Every control may be called from any thread and holds when the call returns.
 */
class StallingProxy
{
public:
    enum Moment {
        /** The text is not handed on: the server never sees it. */
        BeforeServer,
        /** The server gets it and carries it out; its answer is not handed on. */
        BeforeAnswer
    };
    enum Deed { Cut, Stall };

    StallingProxy();
    /** Cuts what is still connected. */
    ~StallingProxy();
    Q_DISABLE_COPY(StallingProxy)

    [[nodiscard]] static QString host() { return "127.0.0.1"; }
    [[nodiscard]] int port() const { return m_port; }

    /** Goes on taking bytes, and hands none on, as a pulled cable does; a connection that ends stays open behind it. */
    void stall();
    /** Ends every stall, that of a text too, and hands on what was held back. */
    void goOn();
    /** Takes connections from now on and never says a word to them. */
    void takeInSilence();
    /**
     * Does the deed, once, to the connection on which the client sends this text, in capitals or not. The moment
     * "BeforeAnswer" comes with the first byte of the server after it: right for a statement that is sent to be carried
     * out ("COMMIT"), too early for one that is only prepared.
     */
    void atText(const QByteArray& text, Moment moment, Deed deed);

private:
    enum Direction { ToServer, ToClient };
    struct Line;
    struct Stream;
    struct Watch
    {
        QByteArray text;
        Moment moment = BeforeServer;
        Deed deed = Cut;
    };

    /** Runs it on the proxy's thread and waits for its end; everything below belongs to that thread. */
    void control(const std::function<void()>& command);
    void work();
    void obey();
    void listen();
    void take();
    [[nodiscard]] bool read(Line& line, Direction direction);
    [[nodiscard]] bool handOn(Line& line, Direction direction) const;
    /** Looks for the watched text in what the client has sent; false where the connection shall be cut. */
    [[nodiscard]] bool look(Line& line, const QByteArray& bytes);
    /** The first answer to the watched text; false where the connection shall be cut. */
    [[nodiscard]] bool answered(Line& line);
    [[nodiscard]] bool isHeld(const Stream& stream) const;

    int m_port = 0;
    int m_listener = -1;
    int m_wake = -1;
    bool m_isSilent = false;
    bool m_stalled = false;
    Watch m_watch;
    std::vector<std::unique_ptr<Line>> m_lines;
    bool m_stop = false;

    std::mutex m_mutex;
    std::deque<std::function<void()>> m_commands;
    std::thread m_thread;
};

Q_DECLARE_METATYPE(StallingProxy::Moment)
Q_DECLARE_METATYPE(StallingProxy::Deed)
