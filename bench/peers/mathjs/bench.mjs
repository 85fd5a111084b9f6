// Measures how often the package parses and works out each school expression in a second; prints one line a term:
// "mathjs: " with the term in the solver's notation, tab, rate.
//
//   npm ci && node bench.mjs [file of expressions]

import { readFileSync } from 'node:fs';
import { all, create } from 'mathjs';

const WARM_UP_SECONDS = 0.1;
const MEASURED_SECONDS = 0.05;
const REPETITIONS = 5;

const math = create(all);
math.import({ ln: Math.log });

const file = process.argv[2] ?? new URL('../../school_expressions.txt', import.meta.url);

function schoolTerms() {
  const lines = readFileSync(file, 'utf8').split('\n').filter((line) => line !== '' && !line.startsWith('#'));
  return lines.map((line) => {
    const [term, otherTerm = term, variables = ''] = line.split(' | ');
    const pairs = variables.split(', ').filter((pair) => pair !== '').map((pair) => pair.split('='));
    return { term, otherTerm, scope: Object.fromEntries(pairs.map(([name, value]) => [name, Number(value)])) };
  });
}

// The sum keeps the engine from dropping work whose result nobody reads.
let sum = 0;

// Processor time, so that other work of the machine does not count.
function timesPerSecond({ otherTerm, scope }, seconds) {
  let count = 0;
  let microseconds = 0;
  const start = process.cpuUsage();
  do {
    for (let round = 0; round < 100; ++round) {
      sum += math.evaluate(otherTerm, scope);
    }
    count += 100;
    const used = process.cpuUsage(start);
    microseconds = used.user + used.system;
  } while (microseconds < seconds * 1e6);
  return (count * 1e6) / microseconds;
}

function median(values) {
  return values.toSorted((left, right) => left - right)[Math.floor(values.length / 2)];
}

const terms = schoolTerms();
terms.forEach((term) => timesPerSecond(term, WARM_UP_SECONDS));
for (const term of terms) {
  const rates = Array.from({ length: REPETITIONS }, () => timesPerSecond(term, MEASURED_SECONDS));
  console.log(`mathjs: ${term.term}\t${Math.round(median(rates))}`);
}
if (!Number.isFinite(sum)) {
  throw new Error('a value is not a number');
}
