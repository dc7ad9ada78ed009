// The web server of the simulated camera, as its clients meet it.
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <nlohmann/json.hpp>
#include <sys/socket.h>

#include "simulator/host/key_hold.h"
#include "tests/simulator/running_camera.h"

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

class WebTest : public testing::Test {
protected:
    static void SetUpTestSuite() { camera = new RunningCamera("--still --reset"); }
    static void TearDownTestSuite()
    {
        delete camera;
        camera = nullptr;
    }

    static json get(const std::string& path)
    {
        const auto result = camera->client().Get(path);
        return result ? json::parse(result->body, nullptr, false) : json();
    }
    static json send(const char* method, const std::string& path, const json& body)
    {
        auto client = camera->client();
        const auto result = std::string(method) == "PUT" ? client.Put(path, body.dump(), "application/json")
                                                         : client.Post(path, body.dump(), "application/json");
        return result ? json::parse(result->body, nullptr, false) : json();
    }
    static RunningCamera* camera;
};

RunningCamera* WebTest::camera = nullptr;

TEST_F(WebTest, RefusesInWords)
{
    const httplib::Headers json_type = {{"Content-Type", "application/json"}};
    const std::tuple<const char*, std::string, httplib::Headers, std::string, int, const char*> cases[] = {
        {"GET", "/nothing", {}, "", 404, "there is nothing at /nothing"},
        {"GET", "/%2e%2e/%2e%2e/etc/passwd", {}, "", 404, "nothing"},
        {"GET", "/channels/3/snapshot.png", {}, "", 404, "no channel '3'"},
        {"GET", "/a%0Ab", {}, "", 400, "control characters"},
        {"GET", "/" + std::string(4000, 'a'), {}, "", 414, "more than 300 bytes"},
        {"DELETE", "/settings", {}, "", 405, "takes GET, not DELETE"},
        {"POST", "/keys", {{"Content-Type", "text/plain"}}, "{}", 415, "application/json"},
        {"POST", "/keys", json_type, "menu", 400, "body:1: syntax error"},
        {"POST", "/keys", json_type, R"({"keys": ["menu", "jump"]})", 400, "unknown key 'jump', expected one of"},
        {"POST", "/keys", json_type, R"({"keys": "menu"})", 400, "must be a list"},
        {"POST", "/keys", json_type, R"({"keys": )" + std::string(60000, '['), 400, "nests deeper than 32 levels"},
        {"POST", "/keys", json_type, R"({"kees": []})", 400, "unknown field 'kees', expected 'keys'"},
        {"POST", "/keys", json_type, "{}", 400, "expected one of 'keys', 'press', 'renew' and 'release'"},
        {"POST", "/keys", json_type, std::string(std::size_t{100} << 20, ' '), 413, "too large"},
        {"PUT", "/settings/Colour", json_type, R"({"value": "1"})", 404, "no setting 'Colour'"},
        {"PUT", "/settings/Zoom", json_type, R"({"value": 99})", 400, "no whole number from 100 to 2000"},
        {"PUT", "/settings.json", json_type, R"({"Zoom": "300", "Colour": "1"})", 400, "no setting 'Colour'"},
        {"POST", "/menu", json_type, R"({"style": 3})", 400, "'style' of 0, 1 or 2"},
        {"POST", "/menu", json_type, R"({"page": "nowhere", "style": 1})", 400, "expected one of: advanced"},
        {"PUT", "/faults", json_type, R"({"on": 1})", 400, "a list of names"},
        {"GET", "/state", {{"Host", "camera.example"}}, "", 403, "serves this machine only"},
        {"GET", "/state", {{"Origin", "http://camera.example"}}, "", 403, "may not use this camera"},
        {"GET", "/state", {{"Sec-Fetch-Site", "cross-site"}, {"Sec-Fetch-Mode", "no-cors"}}, "", 403, "other sites"},
    };
    for (const auto& [method, path, headers, body, status, words] : cases) {
        httplib::Request request;
        request.method = method;
        request.path = path;
        request.headers = headers;
        request.body = body;
        auto client = camera->client();
        client.set_url_encode(false);
        const auto result = client.send(request);
        ASSERT_TRUE(result) << path << ' ' << to_string(result.error());
        EXPECT_EQ(result->status, status) << path;
        EXPECT_THAT(json::parse(result->body, nullptr, false).value("error", result->body), HasSubstr(words));
    }
    EXPECT_EQ(get("/settings.json")["Zoom"], "100"); // the import of two came to nothing
}

/// Sends bytes and reads the answer to its end.
static std::string answer_to(int port, const std::string& bytes)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    (void)::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL); // the camera may have answered and gone
    shutdown(socket, SHUT_WR);
    std::string answer;
    char part[4096];
    for (ssize_t count = recv(socket, part, sizeof part, 0); count > 0; count = recv(socket, part, sizeof part, 0)) {
        answer.append(part, static_cast<std::size_t>(count));
    }
    close(socket);
    return answer;
}

TEST_F(WebTest, AnswersDamagedRequests)
{
    const std::string host = "Host: localhost\r\n";
    const std::pair<std::string, const char*> cases[] = {
        {"\r\n\r\n", "HTTP/1.1 400"},
        {"GET /state HTTP/1.1\r\n\r\n", "HTTP/1.1 403"},
        {"GET /state HTTP/1.1\r\n" + host + std::string(20000, 'a') + "\r\n\r\n", "HTTP/1.1 400"},
        {"GET http://localhost/state HTTP/1.1\r\n" + host + "\r\n", "HTTP/1.1 400"},
        {"POST /keys HTTP/1.1\r\n" + host + "Transfer-Encoding: chunked\r\n\r\nFFFFFFFFFFFFFFF\r\n", "HTTP/1.1 411"},
        {"POST /keys HTTP/1.1\r\n" + host + "Content-Encoding: gzip\r\nContent-Length: 3\r\n\r\n\x1f\x8b\x08",
         "HTTP/1.1 415"},
        {"POST /keys HTTP/1.1\r\n" + host + "Content-Type: application/json\r\nContent-Length: 99\r\n\r\n{",
         "HTTP/1.1 400"},
        {"POST /keys HTTP/1.1\r\n" + host + "Content-Type: application/json\r\nContent-Length: -1\r\n\r\n{}",
         "HTTP/1.1 4"},
        {"POST /keys HTTP/1.1\r\n" + host + "Content-Type: application/json\r\n\r\n", "HTTP/1.1 411"},
        {"GET /channels/2/snapshot.jpg HTTP/1.1\r\n" + host + "Range: bytes=0-1,5-2,-\r\n\r\n", "HTTP/1.1 416"},
        {"HEAD /channels/2/stream.mjpg HTTP/1.1\r\n" + host + "\r\n", "HTTP/1.1 200"},
        {"GET /state HTTP/1.1\r\n" + host + "\r\nGET /state HTTP/1.1\r\n", "HTTP/1.1 200"},
    };
    for (const auto& [bytes, start] : cases) {
        EXPECT_THAT(answer_to(camera->port, bytes), StartsWith(start)) << bytes.substr(0, 60);
    }
    std::string endless = "GET / HTTP/1.1\r\n" + host;
    for (int i = 0; i < 40000; ++i) {
        endless += "X-" + std::to_string(i) + ": a header among too many\r\n";
    }
    EXPECT_THAT(answer_to(camera->port, endless), StartsWith("HTTP/1.1 400"));
    EXPECT_EQ(get("/state")["menu"], true);
}

TEST_F(WebTest, StartsAnotherMenu)
{
    EXPECT_EQ(send("POST", "/menu", {{"style", 1}, {"size", "4k"}})["size"], "4k");
    EXPECT_EQ(get("/state")["channels"][0]["width"], 3840);
    send("POST", "/menu", {{"style", 0}, {"size", "1080p"}, {"page", "network"}});
    EXPECT_EQ(get("/state")["pages"][1]["name"], "network");
    EXPECT_EQ(send("POST", "/menu", {{"page", "main"}})["style"], 0);
    EXPECT_EQ(get("/state")["pages"].size(), 1);
}

TEST(KeyHold, LastsWhileItIsRenewed)
{
    using std::chrono::milliseconds;
    const sim::Key& right = sim::find_key("right");
    const std::tuple<std::set<int>, const char*, int> cases[] = {
        {{}, "right", 28}, {{1000, 2000}, "right", 48}, {{2000}, "left", 28}, {{3500}, "right", 28}};
    for (const auto& [renewals, key, expected] : cases) {
        sim::KeyHold hold;
        const sim::KeyHold::Clock::time_point start;
        hold.begin(right, start);
        int presses = 0;
        for (int time = 0; time < 9000; time += 50) {
            if (renewals.count(time) > 0) {
                hold.renew(sim::find_key(key), start + milliseconds(time));
            }
            presses += hold.due(start + milliseconds(time)) == &right ? 1 : 0;
        }
        EXPECT_EQ(presses, expected);
        EXPECT_EQ(hold.key(), nullptr);
    }
}

TEST_F(WebTest, StreamsPicturesToWhoWatches)
{
    const auto encoded = [] { return get("/channels")["channels"][2]["encoded"].get<long>(); };
    const long before = encoded();
    json viewers;
    std::string read;
    (void)camera->client().Get("/channels/2/stream.mjpg?viewer=me", [&](const char* bytes, std::size_t size) {
        read.append(bytes, size);
        viewers = get("/channels")["channels"][2]["viewers"];
        return read.find("\xFF\xD9\r\n--frame\r\n") == std::string::npos; // a whole picture is enough
    });
    EXPECT_THAT(read, StartsWith("--frame\r\nContent-Type: image/jpeg\r\nContent-Length: "));
    EXPECT_EQ(viewers, json({"me"}));
    EXPECT_GT(encoded(), before);
    while (!get("/channels")["channels"][2]["viewers"].empty()) { // found gone with the next picture
    }
    const long watched = encoded();
    send("PUT", "/settings/Mirror", {{"value", "On"}});
    EXPECT_NE(camera->client().Get("/channels/2/snapshot.png")->body.size(), 0U);
    EXPECT_EQ(encoded(), watched) << "nobody watches";
}

TEST(Web, NeedsTheTokenBeyondThisMachine)
{
    const RunningCamera camera("--token s3cret --still");
    EXPECT_THAT(camera.address, testing::EndsWith("/?token=s3cret\n"));
    const std::string name = "camera_token_" + std::to_string(camera.port);
    const std::tuple<const char*, httplib::Headers, int> cases[] = {
        {"/state", {}, 401},
        {"/state?token=s3cre", {}, 401},
        {"/state", {{"Authorization", "Bearer secret"}}, 401},
        {"/state", {{"Authorization", "Bearer s3cret"}, {"Host", "camera.example"}}, 200},
        {"/state", {{"Cookie", "camera_token_1=other; camera_token_80=s3cret"}}, 401},
        {"/state", {{"Cookie", "a=b; " + name + "=s3cret"}}, 200},
        {"/state", {{"Cookie", "camera_token_80=s3cret"}, {"Host", "camera.example"}}, 200},
        {"/?token=s3cret", {}, 200},
        {"/style.css", {}, 401},
    };
    for (const auto& [path, headers, status] : cases) {
        const auto result = camera.client().Get(path, headers);
        ASSERT_TRUE(result) << path;
        EXPECT_EQ(result->status, status) << path;
        const bool brings_it = std::string(path) == "/?token=s3cret";
        EXPECT_THAT(result->get_header_value("Set-Cookie"), StartsWith(brings_it ? name + "=s3cret; " : ""));
        EXPECT_EQ(result->has_header("Set-Cookie"), brings_it);
    }
}
