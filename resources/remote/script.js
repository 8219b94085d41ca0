// The script, with the line being read in the middle.

const partSize = 400;
const patience = 8000; // after a hand has moved the text
const elements = { h1: "h2", h2: "h3", h3: "h4", h4: "h5", h5: "h6", h6: "h6" };

export class Script {
  constructor({ area, followButton, onChosen, onHeadings }) {
    this.area = area;
    this.followButton = followButton;
    this.onHeadings = onHeadings;
    this.version = undefined;
    this.headings = [];
    this.place = { paragraph: 0, fraction: 0 };
    this.calm = window.matchMedia("(prefers-reduced-motion: reduce)");
    area.addEventListener("click", (event) => {
      const paragraph = event.target.closest("#script > *");
      if (!paragraph || String(getSelection()) !== "") return;
      this.follow();
      onChosen(this.indexOf(paragraph));
    });
    for (const kind of ["wheel", "touchmove"])
      area.addEventListener(kind, () => this.letGo(), { passive: true });
    followButton.addEventListener("click", () => this.follow());
    new ResizeObserver(() => this.jump()).observe(area);
  }

  indexOf(paragraph) {
    return Array.prototype.indexOf.call(this.area.children, paragraph);
  }

  async show(version, count) {
    if (version === this.version) return;
    this.version = version;
    this.headings = [];
    this.current = undefined;
    this.area.replaceChildren();
    this.onHeadings(this.headings);
    for (let part = 0; part * partSize < count; ++part) {
      const answer = await fetch(`/script/${version}/${part}`).catch(() => undefined);
      if (version !== this.version) return; // another one has come
      if (!answer?.ok) {
        this.version = undefined; // the next state asks again
        return;
      }
      const paragraphs = await answer.json();
      if (version !== this.version) return;
      this.area.append(...paragraphs.map(([kind, text]) => this.paragraph(kind, text)));
      this.jump();
    }
    this.onHeadings(this.headings);
  }

  paragraph(kind, text) {
    const element = document.createElement(elements[kind] ?? "p");
    element.textContent = text;
    element.classList.add(text.trim() === "" ? "blank" : kind);
    if (kind in elements) this.headings.push(text);
    return element;
  }

  moveTo(place) {
    this.place = place;
    let paragraph = this.area.children[place.paragraph];
    // A blank line shows nothing: the one before was read last.
    while (paragraph?.classList.contains("blank") && paragraph.previousSibling)
      paragraph = paragraph.previousSibling;
    if (this.current !== paragraph) {
      this.current?.removeAttribute("aria-current");
      paragraph?.setAttribute("aria-current", "true");
      this.current = paragraph;
    }
    if (!this.moving) this.moving = requestAnimationFrame(() => this.step());
  }

  target() {
    const paragraph = this.area.children[this.place.paragraph];
    if (!paragraph) return undefined;
    const inside = paragraph.offsetTop + this.place.fraction * paragraph.offsetHeight;
    return Math.max(0, inside - this.area.offsetTop - this.area.clientHeight / 2);
  }

  step() {
    this.moving = undefined;
    const target = this.target();
    if (target === undefined || this.isHeld()) return;
    const way = target - this.area.scrollTop;
    const isFar = Math.abs(way) > this.area.clientHeight;
    if (Math.abs(way) < 1) return;
    if (isFar || this.calm.matches) {
      this.area.scrollTop = target;
      return;
    }
    this.area.scrollTop += Math.sign(way) * Math.max(1, Math.abs(way) / 4);
    this.moving = requestAnimationFrame(() => this.step());
  }

  jump() {
    const target = this.target();
    if (target !== undefined && !this.isHeld()) this.area.scrollTop = target;
  }

  isHeld() {
    return !this.followButton.hidden;
  }

  letGo() {
    this.followButton.hidden = false;
    clearTimeout(this.holding);
    this.holding = setTimeout(() => this.follow(), patience);
  }

  follow() {
    clearTimeout(this.holding);
    this.followButton.hidden = true;
    this.moveTo(this.place);
  }
}
