// Exchanges the secret of the code for a session.

const form = document.getElementById("form");
const field = document.getElementById("secret");
const outcome = document.getElementById("outcome");

const refusals = {
  403: "This is not the code, or not any more.",
  429: "Too many wrong codes. Wait a minute.",
};

async function pair(secret) {
  outcome.textContent = "Pairing…";
  try {
    const answer = await fetch("/pair", { method: "POST", body: secret });
    if (answer.ok) return location.reload();
    outcome.textContent = refusals[answer.status] ?? "Tessaline refused.";
  } catch {
    outcome.textContent = "Tessaline does not answer.";
  }
}

form.addEventListener("submit", (event) => {
  event.preventDefault();
  pair(field.value.trim());
});

const given = location.hash.slice(1);
if (given) {
  // The secret stays in no history and on no picture of the screen.
  history.replaceState(null, "", "/");
  pair(given);
}
