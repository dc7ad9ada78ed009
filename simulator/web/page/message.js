// Messages to the person: one at a time, beside what it is about. Each stays in the log.

import { make } from "./dom.js";
import { addLine } from "./log.js";

let shown = null; // {box, silent, timer}

function clear() {
  clearTimeout(shown?.timer);
  shown?.box.remove();
  shown = null;
}

function show(text, place, level, silent = false) {
  const now = new Date().toLocaleTimeString("en-GB");
  addLine({ time: `${now}.${String(Date.now() % 1000).padStart(3, "0")}`, level, tag: "page", text });
  clear();
  const close = make("button", { ariaLabel: "Close this message" }, "×");
  const box = make("div", { id: "message", className: level === "ERROR" ? "problem" : "note" }, text, close);
  box.setAttribute("role", "alert");
  close.addEventListener("click", clear);
  shown = { box, silent, timer: setTimeout(clear, 10000) };
  (place ?? document.querySelector(".picture")).append(box);
  box.scrollIntoView({ block: "nearest" });
}

/** Says what went well. */
export const say = (text, place) => show(text, place, "INFO");

/** Shows an error; nothing is swallowed. */
export const trouble = (error, place) => show(error.message, place, "ERROR", error.silent);

/** The camera answers: that it didn't is true no more. */
export function answered() {
  if (shown?.silent) clear();
}
