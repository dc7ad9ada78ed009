// The web server of the simulated camera, as its clients meet it.
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <nlohmann/json.hpp>
#include <sys/socket.h>

#include "simulator/host/key_hold.h"
#include "simulator/video/snapshot.h"
#include "tests/simulator/running_camera.h"

using nlohmann::json;
using namespace testing;

/// Sends bytes and reads the answer to its end.
static std::string answer_to(int port, const std::string& bytes)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{AF_INET, htons(static_cast<std::uint16_t>(port)), {htonl(INADDR_LOOPBACK)}, {}};
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

/// A request as its bytes; header lines end with "\r\n" each.
static std::string bare_request(const std::string& line, const std::string& headers)
{
    return line + " HTTP/1.1\r\n" + headers + "\r\n";
}

static std::string request(const std::string& line, const std::string& headers = "")
{
    return bare_request(line, "Host: localhost\r\n" + headers);
}

static std::string with_body(const std::string& line, const std::string& body)
{
    const std::string length = "Content-Length: " + std::to_string(body.size()) + "\r\n";
    return request(line, "Content-Type: application/json\r\n" + length) + body;
}

class WebTest : public Test {
protected:
    static void SetUpTestSuite() { camera = new RunningCamera("--reset"); }
    static void TearDownTestSuite() { delete camera; }

    /// Sends a well formed request; the JSON of the answer.
    static json ask(const std::string& line, const json& body = {})
    {
        const std::string answer = answer_to(camera->port, body.empty() ? request(line) : with_body(line, body.dump()));
        return json::parse(answer.substr(answer.find("\r\n\r\n")), nullptr, false);
    }
    static inline RunningCamera* camera = nullptr;
};

TEST_F(WebTest, RefusesInWords)
{
    std::string endless;
    for (int i = 0; i < 40000; ++i) {
        endless += "X-" + std::to_string(i) + ": a header among too many\r\n";
    }
    const std::tuple<std::string, int, const char*> cases[] = {
        {request("GET /nothing"), 404, "there is nothing at /nothing"},
        {request("GET /%2e%2e/%2e%2e/etc/passwd"), 404, "nothing"},
        {request("GET /channels/3/snapshot.png"), 404, "no channel '3'"},
        {request("GET /a%0Ab"), 400, "control characters"},
        {request("GET /" + std::string(4000, 'a')), 414, "more than 300 bytes"},
        {request("GET /channels/2/stream.mjpg?viewer=" + std::string(41, 'a')), 400, "at most 40 bytes"},
        {request("DELETE /settings"), 405, "takes GET, not DELETE"},
        {request("POST /keys", "Content-Type: text/plain\r\nContent-Length: 2\r\n") + "{}", 415, "application/json"},
        {with_body("POST /keys", "menu"), 400, "body:1:1: this is no value"},
        {with_body("POST /keys", R"({"keys": ["menu", "jump"]})"), 400, "unknown key 'jump', expected one of"},
        {with_body("POST /keys", R"({"keys": "menu"})"), 400, "must be a list"},
        {with_body("POST /keys", R"({"keys": )" + std::string(60000, '[')), 400, "nests deeper than 32 levels"},
        {with_body("POST /keys", R"({"kees": []})"), 400, "unknown field 'kees', expected 'keys' (one of keys, press"},
        {with_body("POST /keys", "{}"), 400, "expected one of 'keys', 'press', 'renew' and 'release'"},
        {with_body("POST /keys", std::string(std::size_t{100} << 20, ' ')), 413, "too large"},
        {with_body("PUT /settings/Colour", R"({"value": "1"})"), 404, "no setting 'Colour'"},
        {with_body("PUT /settings/Zoom", R"({"value": 99})"), 400, "a whole number from 100 to 2000"},
        {with_body("PUT /settings/Zoom", R"({"value": "0150"})"), 400, "expected '150', without zeros"},
        {with_body("PUT /settings/IpAddr", R"({"value": "hello"})"), 400, "such as 192.168.1.120"},
        {with_body("PUT /settings/NetMask", R"({"value": "999.1.1.1"})"), 400, "'999.1.1.1' is no address"},
        {with_body("PUT /settings.json", R"({"Zoom": "300", "Colour": "1"})"), 400, "no setting 'Colour'"},
        {with_body("POST /menu", R"({"style": 3})"), 400, "'style' of 0, 1 or 2"},
        {with_body("POST /menu", R"({"page": "nowhere", "style": 1})"), 400, "expected one of advanced"},
        {with_body("PUT /faults", R"({"on": 1})"), 400, "a list of names"},
        {bare_request("GET /state", "Host: camera.example\r\n"), 403, "serves this machine only"},
        {request("GET /state", "Origin: http://camera.example\r\n"), 403, "may not use this camera"},
        {request("GET /state", "Sec-Fetch-Site: cross-site\r\nSec-Fetch-Mode: no-cors\r\n"), 403, "other sites"},
        {"\r\n\r\n", 400, ""},
        {bare_request("GET /state", ""), 403, ""},
        {request("GET /state", std::string(20000, 'a') + "\r\n"), 400, ""},
        {request("GET / HTTP/1.1", endless), 400, ""},
        {request("GET http://localhost/state"), 400, ""},
        {request("POST /keys", "Transfer-Encoding: chunked\r\n") + "FFFFFFFFFFFFFFF\r\n", 411, ""},
        {request("POST /keys", "Content-Encoding: gzip\r\nContent-Length: 3\r\n") + "\x1f\x8b\x08", 415, ""},
        {request("POST /keys", "Content-Type: application/json\r\nContent-Length: 99\r\n") + "{", 400, ""},
        {request("POST /keys", "Content-Type: application/json\r\nContent-Length: -1\r\n") + "{}", 413, ""},
        {request("POST /keys", "Content-Type: application/json\r\n"), 411, ""},
        {request("GET /channels/2/snapshot.jpg", "Range: bytes=0-1,5-2,-\r\n"), 416, ""},
        {request("HEAD /channels/2/stream.mjpg"), 200, ""},
        {request("GET /state") + "GET /state HTTP/1.1\r\n", 200, "\"menu\":true"},
    };
    for (const auto& [bytes, status, words] : cases) {
        EXPECT_THAT(answer_to(camera->port, bytes),
                    AllOf(StartsWith("HTTP/1.1 " + std::to_string(status)), HasSubstr(words)))
            << bytes.substr(0, 60);
    }
    EXPECT_EQ(ask("GET /settings.json")["Zoom"], "100"); // the import of two came to nothing
}

TEST_F(WebTest, StartsAnotherMenu)
{
    EXPECT_EQ(ask("POST /menu", {{"style", 1}, {"size", "4k"}})["size"], "4k");
    EXPECT_EQ(ask("GET /state")["channels"][0]["width"], 3840);
    ask("POST /menu", {{"style", 0}, {"size", "1080p"}, {"page", "network"}});
    EXPECT_EQ(ask("GET /state")["pages"][1]["name"], "network");
    EXPECT_EQ(ask("POST /menu", {{"page", "main"}})["style"], 0);
    EXPECT_EQ(ask("GET /state")["pages"].size(), 1);
}

TEST_F(WebTest, TellsItsKeys)
{
    const json keys = ask("GET /keys")["keys"];
    EXPECT_EQ(keys[0]["keyboard"], json({"m", "Escape"}));
    EXPECT_EQ(keys[1]["keyboard"], json({"Enter"}));
    EXPECT_EQ(keys[2], json({{"name", "up"},
                             {"title", "Up"},
                             {"help", "moves the cursor up"},
                             {"keyboard", {"ArrowUp"}},
                             {"repeats", true}}));
}

TEST_F(WebTest, GivesPicturesAsFiles)
{
    ask("POST /keys", {{"keys", {"close", "menu"}}});
    const auto picture = [](const std::string& name) {
        const std::string answer = answer_to(camera->port, request("GET /" + name));
        return sim::load_png(camera->folder.write("picture", answer.substr(answer.find("\r\n\r\n") + 4)));
    };
    const sim::Image png = picture("channels/2/snapshot.png");
    const sim::Image jpeg = picture("channels/2/snapshot.jpg");
    ASSERT_TRUE(jpeg.size == png.size);
    for (std::size_t i = 0; i < png.pixels.size(); i += 7) {
        ASSERT_NEAR(sim::component(jpeg.pixels[i], 8), sim::component(png.pixels[i], 8), 40) << i;
    }
    const sim::Image overlay = picture("overlay.png"); // the menu's left half of the picture
    EXPECT_EQ(overlay.size.width, 960);
    EXPECT_EQ(overlay.pixels[0], 0x800A0A0A);
    ask("POST /keys", {{"keys", {"close"}}});
    EXPECT_THAT(picture("overlay.png").pixels, Each(0U));
}

TEST_F(WebTest, StreamsPicturesToWhoWatches)
{
    const auto preview = [] { return ask("GET /channels")["channels"][2]; };
    json watched;
    std::string read;
    (void)httplib::Client("127.0.0.1", camera->port)
        .Get("/channels/2/stream.mjpg?viewer=me", [&](const char* bytes, std::size_t size) {
            read.append(bytes, size);
            watched = preview();
            return read.find("\xFF\xD9\r\n--frame\r\n") == std::string::npos; // a whole picture is enough
        });
    EXPECT_THAT(read, StartsWith("--frame\r\nContent-Type: image/jpeg\r\nContent-Length: "));
    EXPECT_EQ(watched["viewers"], json({"me"}));
    EXPECT_GT(watched["encoded"], 0);
    while (!(watched = preview())["viewers"].empty()) { // found gone with the next picture
    }
    ask("PUT /settings/Mirror", {{"value", "On"}});
    answer_to(camera->port, request("GET /channels/2/snapshot.png"));
    EXPECT_EQ(preview()["encoded"], watched["encoded"]) << "nobody watches";
}

TEST(Web, NeedsTheTokenBeyondThisMachine)
{
    const RunningCamera camera("--token s3cret");
    EXPECT_THAT(camera.address, EndsWith("/?token=s3cret\n"));
    const std::string name = "camera_token_" + std::to_string(camera.port);
    const std::string host = "Host: 127.0.0.1:" + std::to_string(camera.port) + "\r\n";
    const std::string elsewhere = "Host: camera.example\r\n";
    const std::tuple<const char*, std::string, int> cases[] = {
        {"GET /state", host, 401},
        {"GET /state?token=s3cre", host, 401},
        {"GET /state", host + "Authorization: Bearer secret\r\n", 401},
        {"GET /state", elsewhere + "Authorization: Bearer s3cret\r\n", 200},
        {"GET /state", host + "Cookie: camera_token_1=other; camera_token_80=s3cret\r\n", 401},
        {"GET /state", host + "Cookie: a=b; " + name + "=s3cret\r\n", 200},
        {"GET /state", elsewhere + "Cookie: camera_token_80=s3cret\r\n", 200},
        {"GET /style.css", host, 401},
    };
    for (const auto& [line, headers, status] : cases) {
        EXPECT_THAT(answer_to(camera.port, bare_request(line, headers)),
                    AllOf(StartsWith("HTTP/1.1 " + std::to_string(status)), Not(HasSubstr("Set-Cookie"))))
            << line << headers;
    }
    EXPECT_THAT(answer_to(camera.port, bare_request("GET /?token=s3cret", host)),
                AllOf(StartsWith("HTTP/1.1 200"), HasSubstr("Set-Cookie: " + name + "=s3cret; ")));
    EXPECT_THAT(answer_to(camera.port, bare_request("GET /?token=s3cre", host + "Accept: text/html,*/*\r\n")),
                AllOf(StartsWith("HTTP/1.1 401"), HasSubstr("<input name=\"token\""))); // a person is asked
}

TEST(KeyHold, LastsWhileItIsRenewed)
{
    const sim::Key& right = sim::find_key("right");
    const std::tuple<int, const char*, int> cases[] = {
        {9999, "right", 28}, {2000, "right", 48}, {2000, "left", 28}, {3500, "right", 28}};
    for (const auto& [renewed, key, expected] : cases) {
        sim::KeyHold hold;
        hold.begin(right, {});
        int presses = 0;
        for (int time = 0; time < 9000; time += 50) {
            const sim::KeyHold::Clock::time_point now{std::chrono::milliseconds(time)};
            if (time == renewed) {
                hold.renew(sim::find_key(key), now);
            }
            presses += hold.due(now) == &right ? 1 : 0;
        }
        EXPECT_EQ(presses, expected);
        EXPECT_EQ(hold.key(), nullptr);
    }
}
