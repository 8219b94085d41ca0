// The line to the prompter: it comes back by itself, whatever the device or the network did.

const longestSilence = 5000; // the prompter says something every two seconds
const longestWait = 4000;

export class Connection {
  constructor({ onState, onLine }) {
    this.onState = onState;
    this.onLine = onLine;
    this.wait = 250;
    this.heard = 0;
    document.addEventListener("visibilitychange", () => this.wakeUp());
    window.addEventListener("online", () => this.wakeUp());
    setInterval(() => this.watch(), 1000);
    this.open();
  }

  get isOpen() {
    return this.socket?.readyState === WebSocket.OPEN;
  }

  say(words) {
    if (this.isOpen) this.socket.send(words);
  }

  open() {
    clearTimeout(this.timer);
    this.heard = Date.now();
    const socket = new WebSocket(`ws://${location.host}/socket`);
    this.socket = socket;
    socket.addEventListener("message", (event) => {
      if (socket !== this.socket) return;
      this.heard = Date.now();
      this.wait = 250;
      this.onLine(true);
      this.onState(JSON.parse(event.data));
    });
    socket.addEventListener("close", () => {
      if (socket === this.socket) this.lose();
    });
  }

  lose() {
    this.socket = undefined;
    this.onLine(false);
    this.timer = setTimeout(() => this.retry(), this.wait);
    this.wait = Math.min(this.wait * 2, longestWait);
  }

  // Whoever is not known any more pairs again.
  async retry() {
    try {
      const answer = await fetch("/script/");
      if (answer.status === 403) return location.reload();
      this.open();
    } catch {
      this.lose();
    }
  }

  watch() {
    if (!this.socket || Date.now() - this.heard < longestSilence) return;
    const silent = this.socket;
    this.lose();
    silent.close();
  }

  wakeUp() {
    if (document.visibilityState !== "visible") return;
    this.wait = 250;
    if (this.socket) return this.watch();
    clearTimeout(this.timer);
    this.retry();
  }
}
