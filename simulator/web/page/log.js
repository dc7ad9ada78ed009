// The camera's log: bounded, filtered, and silent for screen readers.

import { byId, make, stored } from "./dom.js";

const kept = 1000;
const replayed = 200; // the camera sends this many again after a lost connection
const ranks = ["EMERG", "ALERT", "CRIT", "ERROR", "WARN", "NOTE", "INFO", "DEBUG", "TRACE"];
const rankOf = level => (ranks.includes(level) ? ranks.indexOf(level) : ranks.length);
const identityOf = entry => `${entry.time} ${entry.level} ${entry.tag} ${entry.text}`;

let entries = []; // {entry, line}, oldest first
let waiting = []; // came since the last drawing, or while paused
let recent = [];
let known = new Set();
let paused = false;
let planned = false;

function isShown({ level, tag, text }) {
  const wanted = byId("log-search").value.toLowerCase();
  return rankOf(level) <= rankOf(byId("log-level").value) && `${tag} ${text}`.toLowerCase().includes(wanted);
}

function lineOf(entry) {
  const kind = rankOf(entry.level) <= rankOf("ERROR") ? "error" : entry.level.toLowerCase();
  return make("li", { className: kind, hidden: !isShown(entry) }, make("time", {}, entry.time),
    make("b", {}, entry.level), make("span", {}, `${entry.tag} `, make("q", {}, entry.text)));
}

function showPause() {
  const more = paused && waiting.length ? ` (${waiting.length} new)` : "";
  byId("log-pause").textContent = (paused ? "Continue" : "Pause") + more;
  byId("log-pause").setAttribute("aria-pressed", paused);
}

function draw() {
  planned = false;
  showPause();
  if (paused || !waiting.length) return;
  const list = byId("log-lines");
  const atEnd = list.scrollTop + list.clientHeight >= list.scrollHeight - 8;
  const added = waiting.map(entry => ({ entry, line: lineOf(entry) }));
  waiting = [];
  list.append(...added.map(({ line }) => line));
  entries.push(...added);
  for (const { line } of entries.splice(0, Math.max(0, entries.length - kept))) line.remove();
  if (atEnd) list.scrollTop = list.scrollHeight;
}

/** Takes one line of the log; many lines are drawn at once. */
export function addLine(entry) {
  const identity = identityOf(entry);
  if (known.delete(identity)) return;
  recent = [...recent.slice(1 - replayed), identity];
  waiting = [...waiting.slice(1 - kept), entry];
  if (!planned) requestAnimationFrame(draw);
  planned = true;
}

/** A connection begins: the lines that come again are known already. */
export function expectReplay() {
  known = new Set(recent);
}

/** Makes filter, pause and clear work. */
export function wireLog() {
  const filter = () => entries.forEach(({ entry, line }) => { line.hidden = !isShown(entry); });
  byId("log-level").value = stored.get("log", "INFO"); // the library's trace is for those who ask
  byId("log-level").addEventListener("change", () => {
    stored.set("log", byId("log-level").value);
    filter();
  });
  byId("log-search").addEventListener("input", filter);
  byId("log-pause").addEventListener("click", () => {
    paused = !paused;
    draw();
  });
  byId("log-clear").addEventListener("click", () => {
    entries = [];
    waiting = [];
    byId("log-lines").replaceChildren();
    showPause();
  });
}
