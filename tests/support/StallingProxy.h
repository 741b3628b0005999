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
 * A bad network between the program and the test cluster: a TCP port on 127.0.0.1 that forwards everything to the
 * server until told otherwise. It runs on a separate thread, so it works while the test's thread waits for the server.
 * All controls are thread-safe and have taken effect when the call returns.
 */
class StallingProxy
{
public:
    enum Moment {
        /** The text is not forwarded: the server never gets it. */
        BeforeServer,
        /** The server gets and executes it; its answer is not forwarded. */
        BeforeAnswer
    };
    enum Deed { Cut, Stall };

    StallingProxy();
    /** Closes all connections. */
    ~StallingProxy();
    Q_DISABLE_COPY(StallingProxy)

    [[nodiscard]] static QString host() { return "127.0.0.1"; }
    [[nodiscard]] int port() const { return m_port; }

    /**
     * Receives bytes but forwards none, like an unplugged cable. The other side of a connection that ends stays open.
     */
    void stall();
    /** Ends every stall, also one from atText(), and forwards the held bytes. */
    void goOn();
    /** Accepts connections from now on but never answers them. */
    void takeInSilence();
    /**
     * Cuts or stalls, once, the connection on which the client sends this text, ignoring case. "BeforeAnswer" applies
     * to the server's first byte after it: correct for a statement that is executed directly ("COMMIT"), too early for
     * one that is only prepared.
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

    /** Runs the command on the proxy's thread and waits for it; everything below is used only on that thread. */
    void control(const std::function<void()>& command);
    void work();
    void obey();
    void listen();
    void take();
    [[nodiscard]] bool read(Line& line, Direction direction);
    [[nodiscard]] bool handOn(Line& line, Direction direction) const;
    /** Looks for the watched text in the client's bytes; false if the connection must be cut. */
    [[nodiscard]] bool look(Line& line, const QByteArray& bytes);
    /** Called for the first answer to the watched text; false if the connection must be cut. */
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
