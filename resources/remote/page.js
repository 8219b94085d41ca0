// The controls, and what they show.

import { Connection } from "/connection.js";
import { Script } from "/script.js";
import { connectThrottle } from "/throttle.js";

const part = (name) => document.getElementById(name);

let state;

// Who scans the code again is let in already.
if (location.hash) history.replaceState(null, "", "/");

const connection = new Connection({ onState: show, onLine: showLine });
const script = new Script({
  area: part("script"),
  followButton: part("follow"),
  onChosen: (index) => connection.say(`paragraph ${index + 1}`),
  onHeadings: showHeadings,
});

function timeText(seconds) {
  if (seconds === null) return "–";
  const rest = String(seconds % 60).padStart(2, "0");
  return `${Math.floor(seconds / 60)}:${rest}`;
}

function show(next) {
  state = next;
  part("toggle").textContent = state.moves ? "Stop" : "Start";
  part("left").textContent = timeText(state.secondsLeft);
  part("pace").textContent = state.paceText;
  part("black").setAttribute("aria-pressed", state.black);
  part("hide").setAttribute("aria-pressed", !state.seen);
  script.show(state.script, state.paragraphs);
  script.moveTo({ paragraph: state.paragraph, fraction: state.fraction });
}

function showLine(isThere) {
  const text = isThere ? "" : "Connecting again…";
  if (part("connection").textContent !== text) part("connection").textContent = text;
  for (const control of part("controls").querySelectorAll("button, input"))
    control.disabled = !isThere;
}

function showHeadings(headings) {
  const entries = headings.map((heading, index) => {
    const button = document.createElement("button");
    button.textContent = heading;
    button.addEventListener("click", () => {
      connection.say(`heading ${index + 1}`);
      part("list").close();
    });
    const entry = document.createElement("li");
    entry.append(button);
    return entry;
  });
  part("entries").replaceChildren(...entries);
  part("headings").hidden = headings.length === 0;
}

const startOrStop = () => connection.say(state?.moves ? "pause" : "play");

part("toggle").addEventListener("click", startOrStop);
part("black").addEventListener("click", () => connection.say(state?.black ? "black off" : "black on"));
part("hide").addEventListener("click", () => connection.say(state?.seen ? "hide" : "show"));
part("headings").addEventListener("click", () => part("list").showModal());
part("close").addEventListener("click", () => part("list").close());
for (const button of document.querySelectorAll("[data-say]"))
  button.addEventListener("click", () => connection.say(button.dataset.say));
connectThrottle(part("throttle"), (points) => connection.say(`scroll ${points}`));

const scriptKeys = {
  " ": startOrStop,
  Home: () => connection.say("top"),
  PageDown: () => connection.say("next-heading"),
  PageUp: () => connection.say("previous-heading"),
  ArrowDown: () => connection.say("down"),
  ArrowUp: () => connection.say("up"),
};

part("script").addEventListener("keydown", (event) => {
  const deed = event.ctrlKey || event.altKey || event.metaKey ? undefined : scriptKeys[event.key];
  if (!deed) return;
  event.preventDefault();
  deed();
});

showLine(false);
