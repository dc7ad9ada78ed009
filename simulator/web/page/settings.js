// The camera's settings: shown as it holds them now, each with a control that fits its kind; export and import.

import { byId, make, mark } from "./dom.js";
import { makeQueue, request } from "./camera.js";
import { whyUnseen } from "./effects.js";
import { say, trouble } from "./message.js";

const rows = new Map(); // name: {setting, row, control, reset, unseen, typing}
let definitions = ""; // what the rows are made of
let meanwhile = null; // changes since the newest reading of all settings began: its answer may be older
const narrow = matchMedia("(max-width: 699px)");

// kind: how its control is made, and its value as the control has it
const kinds = {
  option: ({ options }) => make("select", {}, ...options.map(value => make("option", { value }, value))),
  integer: ({ min, max, step }) => make("input", { type: "number", min, max, step, required: true }),
  color: () => make("input", { type: "color" }),
  text: () => make("input", { type: "text", spellcheck: false }),
};
const toControl = (kind, value) => (kind === "color" ? `#${value}` : value);
const fromControl = (kind, value) => (kind === "color" ? value.slice(1) : value);

const queue = makeQueue(async ({ name, value }) => {
  try {
    const answer = await request("PUT", `settings/${encodeURIComponent(name)}`, { value });
    if (answer.value === rows.get(name)?.setting.value) show(name); // else the event is still on its way
  } catch (error) {
    show(name);
    throw error;
  }
}, ({ name }) => rows.get(name)?.row);

function show(name) {
  const held = rows.get(name);
  if (!held) return;
  const { setting, row, control, reset, typing } = held;
  if (!typing) control.value = toControl(setting.kind, setting.value);
  row.classList.toggle("differs", setting.value !== setting.default);
  reset.hidden = setting.value === setting.default;
}

const called = ({ label, key }) => label || key;

/** Marks what has no effect on the picture now; each value may decide about others. */
function showEffects() {
  const byKey = new Map([...rows.values()].map(({ setting }) => [setting.key, setting]));
  for (const { setting, unseen } of rows.values()) unseen.textContent = whyUnseen(setting.key, byKey, called);
}

/** The camera told that a setting changed. */
export function settingChanged({ name, value }) {
  meanwhile?.push({ name, value });
  const held = rows.get(name);
  if (!held || held.setting.value === value) return;
  held.setting.value = value;
  show(name);
  showEffects();
  mark(held.row, "changed", 2000);
}

// A long name may break between its words, not within them.
function breakable(name) {
  return name.split(/(?<=[a-z])(?=[A-Z])/).flatMap(word => [word, make("wbr")]);
}

function rangeOf({ kind, min, max, unit }) {
  return kind === "integer" ? `${min}–${max}${unit ? ` ${unit}` : ""}` : "";
}

function makeRow(setting) {
  const control = (kinds[setting.kind] ?? kinds.text)(setting);
  control.id = `setting-${setting.name}`;
  const send = value => queue.add({ name: setting.name, value });
  const held = { setting, control, typing: false };
  control.addEventListener("input", () => { held.typing = true; });
  control.addEventListener("change", () => {
    held.typing = false;
    send(fromControl(setting.kind, control.value));
  });
  const drop = () => {
    if (!held.typing) return;
    held.typing = false;
    show(setting.name);
  };
  control.addEventListener("blur", drop); // behind "change", if what was typed is another value
  control.addEventListener("keydown", event => { if (event.key === "Escape") drop(); });
  const reset = make("button", { className: "reset", title: `Back to ${setting.default || "nothing"}` }, "↺");
  reset.setAttribute("aria-label", `${called(setting)} back to its default, ${setting.default}`);
  reset.addEventListener("click", () => send(setting.default));
  const range = make("small", { id: `${control.id}-range`, className: "range" }, rangeOf(setting));
  const unseen = make("small", { id: `${control.id}-unseen`, className: "unused" });
  control.setAttribute("aria-describedby", `${range.id} ${unseen.id}`);
  const row = make("div", { className: "setting", title: setting.name },
    make("label", { htmlFor: control.id }, ...breakable(called(setting))), control, range, reset, unseen);
  rows.set(setting.name, Object.assign(held, { row, reset, unseen }));
  show(setting.name);
  return row;
}

function search() {
  const wanted = byId("settings-search").value.trim().toLowerCase();
  for (const { setting: { name, label }, row } of rows.values()) {
    row.hidden = !`${name}\n${label}`.toLowerCase().includes(wanted);
  }
  for (const group of byId("settings-list").children) {
    group.hidden = !group.querySelector(".setting:not([hidden])");
    if (wanted) group.open = true;
  }
  byId("settings-none").hidden = [...rows.values()].some(({ row }) => !row.hidden);
}

function makeRows(settings) {
  const isTwinOf = one => other => other !== one && other.parent === one.parent && called(other) === called(one);
  const twins = settings.filter(setting => settings.some(isTwinOf(setting)));
  for (const twin of twins) twin.label += ` ${twin.key}`;
  const groups = new Map();
  for (const setting of settings) {
    const parent = setting.parent || "Camera";
    groups.set(parent, [...(groups.get(parent) ?? []), setting]);
  }
  rows.clear();
  byId("settings-list").replaceChildren(...[...groups].map(([parent, members]) =>
    make("details", { open: !narrow.matches }, make("summary", {}, parent), ...members.map(makeRow))));
  showEffects();
  search();
}

// Rows whose definitions are what they were stay, with the focus and what is typed.
function takeAll(settings) {
  const wanted = JSON.stringify(settings.map(({ value, ...definition }) => definition));
  if (wanted === definitions) settings.forEach(settingChanged);
  else makeRows(settings);
  definitions = wanted;
}

/** Reads all settings anew: at the start, and when their definitions may have changed. */
export async function loadSettings() {
  const late = [];
  meanwhile = late; // an older reading under way is worth nothing any more
  try {
    const { settings } = await request("GET", "settings");
    if (meanwhile !== late) return;
    meanwhile = null;
    takeAll(settings);
    late.forEach(settingChanged);
  } finally {
    if (meanwhile === late) meanwhile = null;
  }
}

/** Makes search and import work. */
export function wireSettings() {
  const file = byId("import-file");
  byId("settings-search").addEventListener("input", search);
  byId("import").addEventListener("click", () => file.click());
  file.addEventListener("change", async () => {
    const [chosen] = file.files;
    if (!chosen) return;
    const place = byId("import").parentElement;
    try {
      const { settings } = await request("PUT", "settings.json", await chosen.text());
      say(`${settings} settings imported from ${chosen.name}.`, place);
    } catch (error) {
      trouble(error, place);
    }
    file.value = ""; // so that the same file can be chosen again
  });
}
