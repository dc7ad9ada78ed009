// The simulated camera in a browser: shows what the camera tells, and sends what the person does.

import { byId, make, setOptions, stored, wireTabs } from "./dom.js";
import { listen, makePause, request } from "./camera.js";
import { trouble } from "./message.js";
import { showMenu } from "./menu.js";
import { flash, loadKeys, wireRemote } from "./remote.js";
import { showProblems, wireProblems } from "./problems.js";
import { loadSettings, settingChanged, wireSettings } from "./settings.js";
import { addLine, expectReplay, wireLog } from "./log.js";

// The camera has put the token into a cookie; it needs to be in no bookmark and on no screen.
const address = new URL(location);
address.searchParams.delete("token");
history.replaceState(null, "", address);

const codes = {
  English: "en", French: "fr", German: "de", SimplifiedChinese: "zh-Hans", TraditionalChinese: "zh-Hant",
};
let state = null;
let link = null;
let connected = null; // not known before the first answer

// --- picture ---

const page = Math.random().toString(36).slice(2);
const streamPause = makePause();
let streamTimer = 0;
let streamBroken = false;
let viewer = ""; // the name under which the camera counts this stream
let starts = 0;
let missed = 0;

function startStream() {
  clearTimeout(streamTimer);
  missed = 0;
  viewer = `${page}.${++starts}`;
  const channel = byId("channel").value || "0";
  if (document.hidden) byId("stream").removeAttribute("src"); // a page that nobody sees needs no frames
  else byId("stream").src = `channels/${channel}/stream.mjpg?viewer=${viewer}`;
  byId("snapshot-png").href = `channels/${channel}/snapshot.png`;
  byId("snapshot-jpg").href = `channels/${channel}/snapshot.jpg`;
}

function showVeil() {
  byId("veil").hidden = !streamBroken && connected !== false;
  byId("veil").textContent = connected === false ? "Connection lost. Trying again…" : "No picture. Trying again…";
}

// A stream that ends leaves its last frame in the browser, and no error; but the camera then doesn't name its viewer.
// Once may be too early, while the camera opens the stream.
async function checkStream() {
  if (document.hidden || !connected) return;
  const asked = viewer;
  try {
    const { channels } = await request("GET", "channels", undefined, { signal: AbortSignal.timeout(5000) });
    const lives = channels.some(({ viewers }) => viewers.includes(asked));
    if (asked !== viewer) return;
    missed = lives ? 0 : missed + 1;
    if (missed === 2) startStream();
  } catch {
    if (connected) link.renew(); // events that come no more are silence, and no error
  }
}

function wireStream() {
  const picture = byId("stream");
  picture.addEventListener("load", () => {
    streamPause.reset();
    streamBroken = false;
    showVeil();
  });
  picture.addEventListener("error", () => {
    if (document.hidden) return;
    streamBroken = true;
    showVeil();
    clearTimeout(streamTimer);
    streamTimer = setTimeout(startStream, streamPause.next());
  });
  document.addEventListener("visibilitychange", () => { if (document.hidden) startStream(); }); // else onLink() does
  byId("channel").addEventListener("change", () => {
    startStream();
    showView(state);
  });
  setInterval(checkStream, 3000);
}

function wireEnlarge() {
  const button = byId("enlarge");
  const show = large => {
    document.body.classList.toggle("large", large);
    button.setAttribute("aria-pressed", large);
  };
  button.addEventListener("click", event => {
    if (event.detail) button.blur(); // so that Enter stays the camera's OK
    show(!document.body.classList.contains("large"));
    if (document.fullscreenElement) document.exitFullscreen();
    else document.documentElement.requestFullscreen?.().catch(() => {}); // the window will do
  });
  document.addEventListener("fullscreenchange", () => show(Boolean(document.fullscreenElement)));
}

// --- what a screen reader says ---

let spoken = null; // {place, message, row}
let spokenTimer = 0;

function partsOf(focus) {
  if (!focus) return { place: "", message: "", row: "Menu closed" };
  const row = [focus.label, focus.value].filter(Boolean).join(", ");
  return { place: `${focus.title || focus.page} page.`, message: focus.message ?? "", row };
}

function speak({ focus }) {
  const next = partsOf(focus);
  spoken ??= next; // what stands there from the start isn't news
  clearTimeout(spokenTimer);
  spokenTimer = setTimeout(() => { // a held key says only where it ended
    const news = ["place", "message", "row"].filter(part => next[part] !== spoken[part]);
    const said = new Set(news.length ? [...news, "row"] : []);
    if (said.size) byId("spoken").textContent = [...said].map(part => next[part]).filter(Boolean).join(" ");
    spoken = next;
  }, 150);
}

// --- panels ---

function startAgain(style) {
  const button = make("button", {}, "Start again");
  button.addEventListener("click", () => request("POST", "menu", { style }).catch(trouble));
  return make("p", { className: "problem" }, make("b", {}, "The menu could not start. "), button);
}

function showStart({ menu, style }) {
  const box = byId("no-menu");
  if (menu !== false) box.replaceChildren();
  else if (!box.firstChild) box.append(startAgain(style));
}

function showView({ channels, languages, language, styles, style, sizes, size }) {
  setOptions(byId("channel"), channels.map(({ name }, index) => [String(index), name]))
  const { width, height } = channels[byId("channel").value];
  byId("channel-size").textContent = `${width}×${height}`;
  setOptions(byId("language"), languages.map(name => [name, name.replace(/(?<=[a-z])(?=[A-Z])/, " ")]));
  byId("language").value = language;
  setOptions(byId("style"), [...Array(styles).keys()].map(number => [String(number), number]));
  byId("style").value = String(style);
  setOptions(byId("size"), sizes.map(name => [name, name]));
  byId("size").value = size;
}

function showState(next) {
  const otherSize = state && state.size !== next.size;
  const otherLanguage = state && state.language !== next.language;
  const code = codes[next.language] ?? "";
  state = next;
  byId("spoken").lang = code;
  showMenu(next, code);
  showStart(next);
  showProblems(next.problems);
  showView(next);
  showFaults(next);
  speak(next);
  if (otherSize) startStream();
  if (otherLanguage) loadSettings().catch(trouble);
}

function faultSwitch({ name, help }) {
  const box = make("input", { type: "checkbox", name });
  box.setAttribute("role", "switch");
  box.addEventListener("change", async () => {
    const on = [...byId("faults-list").querySelectorAll(":checked")].map(other => other.name);
    try {
      await request("PUT", "faults", { on });
    } catch (error) {
      showFaults(state);
      trouble(error, line);
    }
  });
  const line = make("div", {},
    make("label", { className: "switch" }, box, make("span", {}, name, make("small", {}, help))));
  return line;
}

function showFaults({ faults }) {
  for (const box of byId("faults-list").querySelectorAll("input")) box.checked = faults.includes(box.name);
  byId("tab-faults").textContent = faults.length ? `Faults (${faults.length} on)` : "Faults";
}

// --- switches ---

function wireSwitch(id, requestOf) {
  byId(id).addEventListener("change", async event => {
    try {
      await request("POST", ...requestOf(event.target.value));
    } catch (error) {
      if (state) showState(state);
      trouble(error, byId(id).closest("section"));
    }
  });
}

function wireTheme() {
  const select = byId("theme");
  const apply = () => { document.documentElement.dataset.theme = select.value; };
  select.value = stored.get("theme", "auto");
  apply();
  select.addEventListener("change", () => {
    stored.set("theme", select.value);
    apply();
  });
}

// --- the connection ---

async function loadFaults() {
  const { faults } = await request("GET", "faults");
  byId("faults-list").replaceChildren(...faults.map(faultSwitch));
  if (state) showFaults(state); // which of them are on is told by the state alone, the one thing that is never late
}

function onLink(now) {
  connected = now;
  const line = byId("connection");
  line.textContent = connected ? "Connected" : "Connection lost";
  line.classList.toggle("lost", !connected);
  showVeil();
  if (!connected) return;
  expectReplay();
  startStream(); // a stream that broke off leaves its last frame behind, and no error
  Promise.all([loadKeys(), loadSettings(), loadFaults()]).catch(trouble);
}

wireTheme();
wireTabs(document.querySelector("[role=tablist]"));
wireRemote(() => Boolean(state?.open));
wireSettings();
wireProblems();
wireLog();
wireStream();
wireEnlarge();
wireSwitch("language", language => ["language", { language }]);
wireSwitch("style", style => ["menu", { style: Number(style) }]);
wireSwitch("size", size => ["menu", { size }]);
wireSwitch("page", page => (page ? ["menu", { page }] : ["keys", { keys: ["close"] }]));
link = listen({
  state: showState,
  key: ({ what }) => flash(what),
  setting: settingChanged,
  definitions: () => loadSettings().catch(trouble),
  log: addLine,
}, onLink);
