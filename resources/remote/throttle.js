// Moves the text while it is pushed to a side, the faster the further, and springs back.

const interval = 50;
const mostPoints = 60; // in one interval

export function connectThrottle(slider, move) {
  let timer;

  const push = () => {
    const share = Number(slider.value) / 100;
    const points = Math.round(Math.sign(share) * share * share * mostPoints * 10) / 10;
    if (points !== 0) move(points);
  };

  const begin = () => {
    timer ??= setInterval(push, interval);
  };

  const springBack = () => {
    clearInterval(timer);
    timer = undefined;
    slider.value = 0;
  };

  slider.addEventListener("input", begin);
  for (const kind of ["change", "pointerup", "pointercancel", "keyup", "blur"])
    slider.addEventListener(kind, springBack);
  window.addEventListener("blur", springBack);
  document.addEventListener("visibilitychange", springBack);
}
