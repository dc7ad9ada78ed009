// Requests to the camera, and its events.

import { answered, trouble } from "./message.js";

/** Sends a request; what the camera answers, or an Error with its words. A string goes as it is, as JSON. */
export async function request(method, path, body, options = {}) {
  const text = body === undefined || typeof body === "string" ? body : JSON.stringify(body);
  const headers = text === undefined ? {} : { "Content-Type": "application/json" };
  let response;
  try {
    response = await fetch(path, { method, headers, body: text, ...options });
  } catch {
    throw Object.assign(new Error("The camera doesn't answer."), { silent: true });
  }
  answered();
  const answer = await response.json().catch(() => ({}));
  if (!response.ok) throw new Error(answer.error ?? `The camera refuses ${path} with status ${response.status}.`);
  return answer;
}

/** A queue that sends one message after the other, in their order; errors are told at placeOf(message). */
export function makeQueue(send, placeOf) {
  const waiting = [];
  let sending = false;
  const pump = async () => {
    if (sending) return;
    sending = true;
    while (waiting.length) {
      const message = waiting.shift();
      await send(message).catch(error => trouble(error, placeOf(message)));
    }
    sending = false;
  };
  return {
    add(message) {
      waiting.push(message);
      pump();
    },
    /** For what is worth nothing later: dropped while something else is on its way. */
    addWhenIdle(message) {
      if (!sending) this.add(message);
    },
    /** Sends at once what still waits: the page is going away and won't see an answer. */
    flush() {
      for (const message of waiting.splice(0)) send(message).catch(() => {});
    },
  };
}

/** The growing pause between two attempts, in milliseconds. */
export function makePause() {
  let attempts = 0;
  return {
    reset: () => { attempts = 0; },
    next: () => Math.min(500 * 2 ** attempts++, 8000),
  };
}

/**
 * Listens to the camera's events while the page is seen: a lost connection is told to onLink and made again. renew() is
 * for who has noticed the loss first. A browser has six connections to a camera for all its tabs together, so that a
 * page that nobody sees lets go of its own.
 */
export function listen(handlers, onLink) {
  const pause = makePause();
  let source = null;
  let timer = 0;
  const drop = () => {
    source?.close();
    clearTimeout(timer);
  };
  const renew = () => {
    drop();
    onLink(false);
    timer = setTimeout(connect, pause.next());
  };
  const connect = () => {
    drop();
    if (document.hidden) return;
    source = new EventSource("events");
    source.onopen = () => {
      pause.reset();
      onLink(true);
    };
    source.onerror = renew; // one way for a lost connection and for an answer that isn't a stream of events
    for (const [name, handle] of Object.entries(handlers)) {
      source.addEventListener(name, event => handle(JSON.parse(event.data)));
    }
  };
  document.addEventListener("visibilitychange", connect);
  connect();
  return { renew };
}
