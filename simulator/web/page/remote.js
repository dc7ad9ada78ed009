// The remote control: buttons on the page and keys of the keyboard. The camera repeats a held key, never the page.

import { byId, make, mark, stored } from "./dom.js";
import { makeQueue, request } from "./camera.js";

const shownAs = { ArrowUp: "↑", ArrowDown: "↓", ArrowLeft: "←", ArrowRight: "→", Escape: "Esc", " ": "Space" };
const spokenAs = { " ": "Space", "+": "Plus" };
const keyOf = new Map(); // event.key to the camera's key
const once = new Set(); // the keys that nobody holds

const queue = makeQueue(message => request("POST", "keys", message, { keepalive: true }), () => byId("remote"));
const buttons = new Map();
let held = null; // {name, source, timer}: the key that the camera repeats, and the finger or key that holds it

function hold(name, source) {
  if (held?.source === source) return;
  if (held) forget(); // a second press replaces the first
  // The camera lets go of a key that isn't renewed, so that a page that dies doesn't hold it for ever.
  held = { name, source, timer: setInterval(() => queue.addWhenIdle({ renew: name }), 1000) };
  buttons.get(name).classList.add("held");
  queue.add({ press: name });
}

function forget() {
  buttons.get(held.name).classList.remove("held");
  clearInterval(held.timer);
  held = null;
}

function release(source = held?.source) {
  if (!held || held.source !== source) return;
  queue.add({ release: held.name });
  forget();
}

function tap(name) {
  queue.add({ keys: [name] });
}

/** Lights a key for a moment: the camera has got it, from here or from elsewhere. */
export function flash(name) {
  const button = buttons.get(name);
  if (button) mark(button, "lit", 150);
}

// Form fields keep all keys, tabs and scrolled lists those that move, buttons and links those that press.
function belongsToElement(event) {
  const within = selector => event.target instanceof Element && event.target.closest(selector);
  if (within("input:not([type=checkbox], [type=color]), select, textarea")) return true;
  if (event.key.startsWith("Arrow")) return within("[role=tab], .scroll");
  return (event.key === "Enter" || event.key === " ") && within("button, a[href], summary, input");
}

function onKeyDown(event, menuIsOpen) {
  if (event.ctrlKey || event.altKey || event.metaKey || event.isComposing || event.defaultPrevented) return;
  const onButton = event.target instanceof Element ? event.target.closest("[data-key]") : null;
  let name = keyOf.get(event.key.length === 1 ? event.key.toLowerCase() : event.key);
  if (onButton && (event.key === "Enter" || event.key === " ")) name = onButton.dataset.key;
  else if (!byId("keys-on").checked || belongsToElement(event)) return;
  if (!name || (event.key === "Escape" && !menuIsOpen())) return;
  event.preventDefault();
  if (event.repeat) return;
  if (once.has(name)) tap(name);
  else hold(name, event.code); // a shifted key may come up as another event.key, but never as another code
}

function wireButton(button) {
  const name = button.dataset.key;
  buttons.set(name, button);
  const source = event => `pointer ${event.pointerId}`;
  button.addEventListener("pointerdown", event => {
    if (event.button !== 0 || once.has(name)) return;
    // A finger is captured by the button; let go, it can leave.
    if (button.hasPointerCapture(event.pointerId)) button.releasePointerCapture(event.pointerId);
    hold(name, source(event));
  });
  for (const end of ["pointerup", "pointercancel", "pointerleave"]) {
    button.addEventListener(end, event => release(source(event)));
  }
  button.addEventListener("blur", () => release());
  // A click without a pointer comes from an assistive tool, which knows nothing of holding.
  button.addEventListener("click", event => {
    if (once.has(name) || event.detail === 0) tap(name);
  });
  // The mouse takes no focus here: Enter shall stay the camera's OK after a click on Menu.
  button.addEventListener("mousedown", event => {
    event.preventDefault();
    if (!button.matches(":focus")) document.activeElement?.blur();
  });
  button.addEventListener("contextmenu", event => event.preventDefault()); // a long touch is a hold
}

function showKey({ name, title, help, keyboard, repeats }) {
  if (!repeats) once.add(name);
  const button = buttons.get(name);
  const words = help[0].toUpperCase() + help.slice(1);
  button.title = words;
  button.ariaLabel = title;
  if (keyboard.length) button.setAttribute("aria-keyshortcuts", spokenAs[keyboard[0]] ?? keyboard[0]);
  for (const key of keyboard) {
    const shown = shownAs[key] ?? (key.length === 1 ? key.toUpperCase() : key);
    keyOf.set(key, name);
    byId("keys-list").append(make("div", {}, make("dt", {}, make("kbd", {}, shown)),
      make("dd", {}, title, make("small", {}, words))));
    if (/^[a-z ]$/.test(key)) button.append(make("kbd", { ariaHidden: "true" }, shown));
  }
}

/** Learns from the camera what its keys are called and do. */
export async function loadKeys() {
  if (keyOf.size) return;
  const { keys } = await request("GET", "keys");
  if (!keyOf.size) keys.filter(({ name }) => buttons.has(name)).forEach(showKey);
}

/** Makes the remote control work; menuIsOpen tells whether Escape has anything to close. */
export function wireRemote(menuIsOpen) {
  document.querySelectorAll("[data-key]").forEach(wireButton);
  const enabled = byId("keys-on");
  enabled.checked = stored.get("keys", "on") === "on";
  enabled.addEventListener("change", () => stored.set("keys", enabled.checked ? "on" : "off"));
  addEventListener("keydown", event => onKeyDown(event, menuIsOpen));
  addEventListener("keyup", event => {
    release(event.code);
    if (event.key === " " && event.target instanceof Element && event.target.closest("[data-key]")) {
      event.preventDefault(); // no click behind a hold
    }
  });
  addEventListener("blur", () => release());
  document.addEventListener("visibilitychange", () => { if (document.hidden) release(); });
  addEventListener("pagehide", () => {
    release();
    queue.flush();
  });
}
