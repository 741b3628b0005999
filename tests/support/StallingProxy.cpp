#include "support/StallingProxy.h"

#include "support/TestCluster.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <future>
#include <netdb.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/** One direction of a connection. */
struct StallingProxy::Stream
{
    std::deque<QByteArray> held;
    bool stalled = false;
    bool ended = false;
};

/** One connection of the program; a silent one has no server socket. */
struct StallingProxy::Line
{
    Line(int clientSocket, int serverSocket) : client(clientSocket), server(serverSocket) {}
    ~Line()
    {
        ::close(client);
        if (server >= 0)
            ::close(server);
    }
    Q_DISABLE_COPY(Line)

    Stream& stream(Direction direction) { return direction == ToServer ? toServer : toClient; }

    int client;
    int server;
    Stream toServer;
    Stream toClient;
    /** The last bytes of the client, which may contain the beginning of the watched text. */
    QByteArray tail;
    bool awaitsAnswer = false;
};

namespace
{
void prepare(int socket)
{
    const int on = 1;
    // Has no effect on a unix socket.
    ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

int connectToSocketFile(const QByteArray& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    const int server = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::connect(server, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0)
        return server;
    ::close(server);
    return -1;
}

int connectToPort(const QByteArray& host, int port)
{
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.constData(), QByteArray::number(port).constData(), &wanted, &found) != 0)
        return -1;
    int server = -1;
    for (const addrinfo* at = found; at && server < 0; at = at->ai_next) {
        server = ::socket(at->ai_family, at->ai_socktype | SOCK_CLOEXEC, at->ai_protocol);
        if (::connect(server, at->ai_addr, at->ai_addrlen) != 0) {
            ::close(server);
            server = -1;
        }
    }
    ::freeaddrinfo(found);
    return server;
}

int connectToCluster()
{
    const QByteArray host = TestCluster::instance().host().toLocal8Bit();
    const int port = TestCluster::instance().port();
    return host.startsWith('/') ? connectToSocketFile(host + "/.s.PGSQL." + QByteArray::number(port))
                                : connectToPort(host, port);
}
} // namespace

StallingProxy::StallingProxy() : m_wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    // Create the cluster before the proxy's thread uses it.
    TestCluster::instance();
    listen();
    m_thread = std::thread(&StallingProxy::work, this);
}

StallingProxy::~StallingProxy()
{
    control([this] { m_stop = true; });
    m_thread.join();
    m_lines.clear();
    ::close(m_wake);
    ::close(m_listener);
}

void StallingProxy::stall()
{
    control([this] { m_stalled = true; });
}

void StallingProxy::goOn()
{
    control([this] {
        m_stalled = false;
        for (const auto& line : m_lines)
            line->toServer.stalled = line->toClient.stalled = false;
    });
}

void StallingProxy::takeInSilence()
{
    control([this] { m_isSilent = true; });
}

void StallingProxy::atText(const QByteArray& text, Moment moment, Deed deed)
{
    control([=] {
        m_watch = {text.toLower(), moment, deed};
        for (const auto& line : m_lines) {
            line->tail.clear();
            line->awaitsAnswer = false;
        }
    });
}

void StallingProxy::control(const std::function<void()>& command)
{
    const auto done = std::make_shared<std::promise<void>>();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_commands.emplace_back([&command, done] {
            command();
            done->set_value();
        });
    }
    ::eventfd_write(m_wake, 1);
    done->get_future().wait();
}

void StallingProxy::obey()
{
    eventfd_t times = 0;
    ::eventfd_read(m_wake, &times);
    std::deque<std::function<void()>> commands;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        commands.swap(m_commands);
    }
    for (const auto& command : commands)
        command();
}

void StallingProxy::listen()
{
    m_listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto* where = reinterpret_cast<sockaddr*>(&address);
    socklen_t size = sizeof address;
    if (::bind(m_listener, where, size) != 0 || ::listen(m_listener, SOMAXCONN) != 0 ||
        ::getsockname(m_listener, where, &size) != 0)
        qFatal("stalling proxy: %s", std::strerror(errno));
    m_port = ntohs(address.sin_port);
}

void StallingProxy::work()
{
    while (!m_stop) {
        // Do not poll ended streams: they would wake the thread all the time.
        const auto entry = [](int socket, bool reads, bool writes) {
            const int events = (reads ? POLLIN : 0) | (writes ? POLLOUT : 0);
            return pollfd{events ? socket : -1, static_cast<short>(events), 0};
        };
        std::vector<pollfd> sockets{entry(m_wake, true, false), entry(m_listener, true, false)};
        for (const auto& line : m_lines) {
            const bool toServer = !line->toServer.held.empty() && !isHeld(line->toServer);
            const bool toClient = !line->toClient.held.empty() && !isHeld(line->toClient);
            sockets.push_back(entry(line->client, !line->toServer.ended, toClient));
            sockets.push_back(entry(line->server, !line->toClient.ended, toServer));
        }
        ::poll(sockets.data(), sockets.size(), -1);

        std::vector<Line*> dead;
        for (std::size_t i = 0; i < m_lines.size(); ++i) {
            Line& line = *m_lines[i];
            if ((sockets[2 * i + 2].revents && !read(line, ToServer)) ||
                (sockets[2 * i + 3].revents && !read(line, ToClient)))
                dead.push_back(&line);
        }
        const bool knocked = sockets[1].revents != 0;
        const auto isDead = [&dead](const auto& line) {
            return std::find(dead.begin(), dead.end(), line.get()) != dead.end();
        };
        m_lines.erase(std::remove_if(m_lines.begin(), m_lines.end(), isDead), m_lines.end());
        obey();
        if (knocked)
            take();
        const auto isOver = [this](const auto& line) { return !handOn(*line, ToServer) || !handOn(*line, ToClient); };
        m_lines.erase(std::remove_if(m_lines.begin(), m_lines.end(), isOver), m_lines.end());
    }
}

void StallingProxy::take()
{
    const int client = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    if (client < 0)
        return;
    const int server = m_isSilent ? -1 : connectToCluster();
    if (server < 0 && !m_isSilent) {
        ::close(client);
        return;
    }
    prepare(client);
    prepare(server);
    m_lines.push_back(std::make_unique<Line>(client, server));
}

bool StallingProxy::read(Line& line, Direction direction)
{
    const int from = direction == ToServer ? line.client : line.server;
    Stream& stream = line.stream(direction);
    QByteArray bytes(65536, Qt::Uninitialized);
    const ssize_t size = ::recv(from, bytes.data(), static_cast<std::size_t>(bytes.size()), MSG_DONTWAIT);
    if (size < 0 && errno == EAGAIN)
        return true;
    stream.ended = size <= 0;
    // Bytes of a silent connection are dropped.
    if (stream.ended || line.server < 0)
        return true;
    bytes.truncate(static_cast<int>(size));
    if (direction == ToServer ? !look(line, bytes) : !answered(line))
        return false;
    stream.held.push_back(bytes);
    return true;
}

bool StallingProxy::look(Line& line, const QByteArray& bytes)
{
    if (m_watch.text.isEmpty())
        return true;
    const QByteArray sent = line.tail + bytes.toLower();
    line.tail = sent.right(qMin(m_watch.text.size() - 1, sent.size()));
    if (!sent.contains(m_watch.text))
        return true;
    m_watch.text.clear();
    if (m_watch.moment == BeforeAnswer) {
        line.awaitsAnswer = true;
        return true;
    }
    line.toServer.stalled = line.toClient.stalled = true;
    return m_watch.deed == Stall;
}

bool StallingProxy::answered(Line& line)
{
    if (!line.awaitsAnswer)
        return true;
    line.awaitsAnswer = false;
    line.toServer.stalled = line.toClient.stalled = true;
    return m_watch.deed == Stall;
}

bool StallingProxy::handOn(Line& line, Direction direction) const
{
    const int to = direction == ToServer ? line.server : line.client;
    Stream& stream = line.stream(direction);
    if (isHeld(stream))
        return true;
    while (!stream.held.empty()) {
        QByteArray& bytes = stream.held.front();
        const ssize_t size =
            ::send(to, bytes.constData(), static_cast<std::size_t>(bytes.size()), MSG_DONTWAIT | MSG_NOSIGNAL);
        if (size < 0)
            return errno == EAGAIN;
        bytes.remove(0, static_cast<int>(size));
        if (!bytes.isEmpty())
            return true;
        stream.held.pop_front();
    }
    return !(stream.ended && stream.held.empty());
}

bool StallingProxy::isHeld(const Stream& stream) const { return stream.stalled || m_stalled; }
