; The orchestra of the soundtrack. Stereo; every instrument adds to a bus and to sends (delay, reverb,
; drum room); the instrument Mix sums them up. The buses differ in what is done to them there:
;   Drum  filtered under water          Bass  mono, gives way to the kick
;   Mus   accompaniment: gives way to the kick, filtered under water
;   Top   melodies: give way a little, are filtered less
;   Air   bells: give way a little, never filtered
;   Fx    effects: give way by half, filtered under water
;   Open  what is heard even where all else is muted
; Pitches are MIDI note numbers, levels are plain amplitude, times are seconds.
sr = 44100
ksmps = 15
nchnls = 2
0dbfs = 1
seed 7

gaDrumL init 0
gaDrumR init 0
gaBass init 0
gaMusL init 0
gaMusR init 0
gaTopL init 0
gaTopR init 0
gaAirL init 0
gaAirR init 0
gaFxL init 0
gaFxR init 0
gaOpenL init 0
gaOpenR init 0
gaDelL init 0
gaDelR init 0
gaRevL init 0
gaRevR init 0
gaRoomL init 0
gaRoomR init 0
gkDuck init 1
gkFade init 1
gkMute init 1
gkWater init 20000

; Add a mono signal to a bus: position 0..1 left to right, shares for delay and reverb.
opcode ToMusic, 0, akkk
  asig, kpan, kdelay, krev xin
  aL = asig * sqrt(1 - kpan)
  aR = asig * sqrt(kpan)
  gaMusL += aL
  gaMusR += aR
  gaDelL += aL * kdelay
  gaDelR += aR * kdelay
  gaRevL += aL * krev
  gaRevR += aR * krev
endop

opcode ToAir, 0, akkk
  asig, kpan, kdelay, krev xin
  aL = asig * sqrt(1 - kpan)
  aR = asig * sqrt(kpan)
  gaAirL += aL
  gaAirR += aR
  gaDelL += aL * kdelay
  gaDelR += aR * kdelay
  gaRevL += aL * krev
  gaRevR += aR * krev
endop

; Drums: shares for the room and the long reverb.
opcode ToDrums, 0, akkk
  asig, kpan, kroom, krev xin
  aL = asig * sqrt(1 - kpan)
  aR = asig * sqrt(kpan)
  gaDrumL += aL
  gaDrumR += aR
  gaRoomL += aL * kroom
  gaRoomR += aR * kroom
  gaRevL += aL * krev
  gaRevR += aR * krev
endop

; Pad: note, level, filter at start and end, attack, release. Three saws a side; each side's filter
; drifts on its own, slowly.
instr Pad
  icps = cpsmidinn(p4)
  ilen = p3
  xtratim p9
  kenv linsegr 0, p8, 1, 0.1, 0.92, p9, 0
  kcut expseg p6, ilen, p7, p9, p7 * 0.6
  iph1 random 0, 1
  iph2 random 0, 1
  iph3 random 0, 1
  iph4 random 0, 1
  iph5 random 0, 1
  iph6 random 0, 1
  irate1 random 0.07, 0.16
  irate2 random 0.07, 0.16
  aL vco2 0.3, icps * cent(-13), 16, 0.5, iph1
  aL2 vco2 0.3, icps * cent(4), 16, 0.5, iph2
  aL3 vco2 0.3, icps * cent(11), 16, 0.5, iph3
  aR vco2 0.3, icps * cent(13), 16, 0.5, iph4
  aR2 vco2 0.3, icps * cent(-4), 16, 0.5, iph5
  aR3 vco2 0.3, icps * cent(-11), 16, 0.5, iph6
  kslow1 oscili 0.22, irate1, -1, iph1
  kslow2 oscili 0.22, irate2, -1, iph4
  aL moogladder2 aL + aL2 + aL3, limit(kcut * (1 + kslow1), 60, 15000), 0.12
  aR moogladder2 aR + aR2 + aR3, limit(kcut * (1 + kslow2), 60, 15000), 0.12
  aL butterhp aL, 130
  aR butterhp aR, 130
  aL *= kenv * p5
  aR *= kenv * p5
  gaMusL += aL
  gaMusR += aR
  gaRevL += aL * 0.35
  gaRevR += aR * 0.35
endin

; Drone: note, level, attack, release.
instr Drone
  icps = cpsmidinn(p4)
  xtratim p7
  kenv linsegr 0, p6, 1, p7, 0
  klfo lfo 0.12, 0.11
  a1 oscili 0.6, icps
  a2 oscili 0.22, icps * 2 * cent(4)
  a3 oscili 0.16, icps * 2 * cent(-4), -1, 0.3
  asig = (a1 + (a2 + a3) * (1 + klfo)) * kenv * p5
  ToMusic asig, 0.5, 0, 0.15
endin

; Wind: level at start, in the middle, at the end.
instr Wind
  kenv linseg p4, p3 * 0.5, p5, p3 * 0.5, p6
  an1 pinker
  an2 pinker
  kl1 lfo 0.5, 0.083
  kl2 lfo 0.5, 0.061
  kf1 = 260 * pow(5, 0.5 + kl1)
  kf2 = 260 * pow(5, 0.5 + kl2)
  aL butterbp an1, kf1, kf1 * 0.7
  aR butterbp an2, kf2, kf2 * 0.7
  aL *= kenv * (0.6 + kl2)
  aR *= kenv * (0.6 + kl1)
  gaFxL += aL
  gaFxR += aR
  gaRevL += aL * 0.2
  gaRevR += aR * 0.2
endin

; Glass bell: note, level, pan, share for the delay.
instr Bell
  icps = cpsmidinn(p4)
  idec = 2 + 2 * (84 - p4) / 40
  idec limit idec, 1.4, 4.5
  kenv expseg 1, idec, 0.001
  ki1 expseg 3.2, 0.9, 0.05, idec, 0.04
  ki2 expseg 1.2, 0.25, 0.02, idec, 0.01
  am1 oscili ki1 * icps, icps * 3.5
  am2 oscili ki2 * icps, icps * 7.07
  a1 oscili 0.55, icps + am1 * 0.5 + am2 * 0.3
  a2 oscili 0.16, icps * 2.003
  a3 oscili 0.06, icps * 5.41
  katt linseg 0, 0.003, 1, 1, 1
  ToAir (a1 + a2 + a3) * kenv * katt * p5, p6, p7, 0.4
endin

; Shard of glass: note, level, pan, decay.
instr Shard
  icps = cpsmidinn(p4)
  kenv expseg 1, p7, 0.001
  a1 oscili 0.6, icps
  a2 oscili icps * 2.76 < 19000 ? 0.3 : 0, icps * 2.76
  a3 oscili icps * 5.40 < 19000 ? 0.2 : 0, icps * 5.40
  katt linseg 0, 0.001, 1, 1, 1
  ToAir (a1 + a2 + a3) * kenv * katt * p5, p6, 0.1, 0.3
endin

; Choir: note, level, attack, release, 1 if it sings the melody. Three saws a side through four
; formants that wander between "oh" and "ah".
instr Choir
  xtratim p7
  kenv linsegr 0, p6, 1, p7, 0
  kvib linseg 0, 0.5 + 0.7 * (1 - p8), 0, 1, 1, 1, 1
  irate random 4.7, 5.3
  klfo lfo 0.0035, irate
  kcps = cpsmidinn(p4) * (1 + klfo * kvib)
  iph1 random 0, 1
  iph2 random 0, 1
  iph3 random 0, 1
  iph4 random 0, 1
  iph5 random 0, 1
  iph6 random 0, 1
  aL vco2 0.23, kcps * cent(7), 16, 0.5, iph1
  aL2 vco2 0.23, kcps * cent(-2), 16, 0.5, iph2
  aL3 vco2 0.23, kcps * cent(-11), 16, 0.5, iph3
  aR vco2 0.23, kcps * cent(-7), 16, 0.5, iph4
  aR2 vco2 0.23, kcps * cent(2), 16, 0.5, iph5
  aR3 vco2 0.23, kcps * cent(11), 16, 0.5, iph6
  an1 pinker
  an2 pinker
  aL = aL + aL2 + aL3 + an1 * 0.07
  aR = aR + aR2 + aR3 + an2 * 0.07
  kvowel oscili 0.5, 0.13, -1, iph1
  kvowel = 0.6 + kvowel * 0.8
  kf1 = 500 + 230 * kvowel
  kf2 = 880 + 320 * kvowel
  kf3 = 2650 + 200 * kvowel
  aLf butterbp aL, kf1, 120
  aL2 butterbp aL, kf2, 160
  aL3 butterbp aL, kf3, 320
  aL4 butterbp aL, 3650, 500
  aRf butterbp aR, kf1 * 1.02, 120
  aR2 butterbp aR, kf2 * 0.98, 160
  aR3 butterbp aR, kf3 * 1.02, 320
  aR4 butterbp aR, 3750, 500
  aLo = (aLf + aL2 * 0.65 + aL3 * 0.5 + aL4 * 0.3) * kenv * p5
  aRo = (aRf + aR2 * 0.65 + aR3 * 0.5 + aR4 * 0.3) * kenv * p5
  gaMusL += aLo * (1 - p8)
  gaMusR += aRo * (1 - p8)
  gaTopL += aLo * p8
  gaTopR += aRo * p8
  gaRevL += aLo * 0.5
  gaRevR += aRo * 0.5
endin

; Bass: note, level, brightness 0..1.
instr Bass
  icps = cpsmidinn(p4)
  kenv linsegr 0, 0.004, 1, p3 * 0.7, 0.75, 0.04, 0
  kcut expseg 600 + 2200 * p6, 0.16, 240 + 220 * p6, 2, 200
  a0 oscili 0.6, icps
  a1 vco2 0.45, icps * cent(5)
  a2 vco2 0.45, icps * cent(-5)
  af zdf_ladder a1 + a2, kcut, 2.2
  asig = tanh((a0 + af) * 1.4) * 0.72 * kenv * p5
  gaBass += asig
endin

; Long bass: note, level, note to glide from.
instr Sub
  kcps expseg cpsmidinn(p6), 0.09, cpsmidinn(p4), 10, cpsmidinn(p4)
  kenv linsegr 0, 0.02, 1, 0.12, 0
  a0 oscili 0.8, kcps
  a1 vco2 0.3, kcps
  klfo lfo 0.5, 4, 1
  kcut = 260 + 500 * (0.5 + klfo)
  af zdf_ladder a1, kcut, 3
  gaBass += tanh((a0 + af) * 1.2) * 0.75 * kenv * p5
endin

; Kick: level.
instr Kick
  kcps expseg 220, 0.02, 112, 0.07, 52, 1, 47
  kenv expseg 1, 0.22, 0.02, 0.08, 0.0005
  asig oscili 1, kcps
  an random -1, 1
  kclick linseg 1, 0.006, 0, 1, 0
  ac butterhp an * kclick, 1800
  asig = tanh(asig * 1.8) * kenv + ac * 0.4
  ToDrums asig * p4, 0.5, 0.10, 0.01
endin

; What the kick does to the others: down, hold, back.
instr Duck
  kval linseg 1, 0.008, p4, 0.06, p4, 0.27, 1
  gkDuck = kval
endin

; Snare: level. Noise in two bands, two pre-hits of a clap, a tone. Soft hits are darker.
instr Snare
  an random -1, 1
  itune random 0.985, 1.015
  ibright = 0.55 + 0.45 * tanh(p4 * 4)
  kc linseg 0, 0.001, 0.5, 0.009, 0.05, 0.001, 0.6, 0.010, 0.08, 0.001, 1, 0.03, 0.5, 0.16, 0, 1, 0
  kn expseg 1, 0.19, 0.001, 1, 0.0005
  a1 butterbp an, 1750 * itune, 1300
  a2 butterhp an, 5200
  kt expseg 1, 0.11, 0.001, 1, 0.0005
  kcps expseg 260 * itune, 0.03, 185 * itune, 1, 180 * itune
  at oscili 0.7, kcps
  asig = (a1 * 0.85 * kc + a2 * 0.5 * kn * ibright + at * kt) * p4
  ToDrums asig, 0.52, 0.30, 0.12
endin

; Clap: level. Four bursts, each side its own.
instr Clap
  an1 random -1, 1
  an2 random -1, 1
  kc linseg 0, 0.001, 0.7, 0.010, 0.05, 0.001, 0.8, 0.011, 0.05, 0.001, 0.9, 0.010, 0.1, 0.001, 1, 0.14, 0, 1, 0
  aL butterbp an1, 1500, 1100
  aR butterbp an2, 1650, 1100
  aL2 butterhp an1, 6000
  aR2 butterhp an2, 6000
  aL = (aL + aL2 * 0.25) * kc * p4
  aR = (aR + aR2 * 0.25) * kc * p4
  gaDrumL += aL
  gaDrumR += aR
  gaRoomL += aL * 0.4
  gaRoomR += aR * 0.4
  gaRevL += aL * 0.15
  gaRevR += aR * 0.15
endin

; Hat: level, length of the sound, pan. Harder hits are brighter.
instr Hat
  an random -1, 1
  itune random 0.97, 1.03
  a1 vco2 0.3, 4030 * itune, 10
  a2 vco2 0.3, 5617 * itune, 10
  asig = an * 0.7 + a1 * a2 * 1.5
  ihigh = 7600 - 3000 * limit(p4, 0, 0.4)
  asig butterhp asig, ihigh
  asig butterhp asig, ihigh
  kenv expseg 1, p5, 0.002, 0.05, 0.0005
  ToDrums asig * kenv * p4, p6, 0.08, 0.03
endin

; Shaker: level, pan: noise that swells and falls.
instr Shaker
  an random -1, 1
  kenv linseg 0, 0.022, 1, 0.055, 0, 1, 0
  asig butterbp an, 8200, 4200
  ToDrums asig * kenv * p4, p5, 0.05, 0.05
endin

; Tick: level, pan: a small wooden sound before the drums come.
instr Tick
  kenv expseg 1, 0.03, 0.001, 1, 0.0005
  a1 oscili 0.6, 2350
  a2 oscili 0.4, 3790
  ToDrums (a1 + a2) * kenv * p4, p5, 0.1, 0.25
endin

; Tom: note, level, pan.
instr Tom
  kcps expseg cpsmidinn(p4) * 1.8, 0.05, cpsmidinn(p4), 1, cpsmidinn(p4) * 0.9
  kenv expseg 1, 0.4, 0.001, 1, 0.0005
  a1 oscili 1, kcps
  an pinker
  kn expseg 0.4, 0.05, 0.001, 1, 0.0005
  ToDrums (tanh(a1 * 1.4) * kenv + an * kn) * p5, p6, 0.25, 0.2
endin

; Crash: level, length.
instr Crash
  an1 random -1, 1
  an2 random -1, 1
  kenv expseg 1, p5, 0.001
  aL butterhp an1, 4500
  aR butterhp an2, 4700
  aL *= kenv * p4
  aR *= kenv * p4
  gaFxL += aL
  gaFxR += aR
  gaRevL += aL * 0.3
  gaRevR += aR * 0.3
endin

; Lead: note, level, note to glide from, share of the layer an octave above. Five saws, a pulse whose
; width moves, a sine an octave below.
instr Lead
  kcps expseg cpsmidinn(p6), 0.045, cpsmidinn(p4), 20, cpsmidinn(p4)
  kvd linseg 0, 0.25, 0, 0.3, 1, 1, 1
  klfo lfo 0.006, 5.4
  kcps = kcps * (1 + klfo * kvd)
  kenv linsegr 0, 0.012, 1, 0.2, 0.8, 0.12, 0
  iph1 random 0, 1
  iph2 random 0, 1
  iph3 random 0, 1
  iph4 random 0, 1
  iph5 random 0, 1
  a1 vco2 0.24, kcps * cent(13), 16, 0.5, iph1
  a2 vco2 0.24, kcps * cent(-13), 16, 0.5, iph2
  a3 vco2 0.24, kcps * cent(6), 16, 0.5, iph3
  a4 vco2 0.24, kcps * cent(-6), 16, 0.5, iph4
  a5 vco2 0.24, kcps, 16, 0.5, iph5
  kwide oscili 0.12, 0.4, -1, iph1
  ap vco2 0.20, kcps, 2, 0.36 + kwide
  asub oscili 0.28, kcps * 0.5
  aoL vco2 0.24 * p7, kcps * 2 * cent(5), 16, 0.5, iph3
  aoR vco2 0.24 * p7, kcps * 2 * cent(-5), 16, 0.5, iph4
  kcut expseg 3400, 0.03, 8600, 0.4, 6200, 5, 5400
  aL zdf_ladder (a1 + a4) * 0.85 + a5 + ap * 0.7 + asub + aoL, kcut, 1.2
  aR zdf_ladder (a2 + a3) * 0.85 + a5 + ap * 0.7 + asub + aoR, kcut, 1.2
  aL *= kenv * p5
  aR *= kenv * p5
  gaTopL += aL
  gaTopR += aR
  gaDelL += aL * 0.26
  gaDelR += aR * 0.26
  gaRevL += aL * 0.2
  gaRevR += aR * 0.2
endin

; Soft lead (a reed): note, level, pan. The width of its pulses sweeps, the other way on each side.
instr Reed
  kvd linseg 0, 0.35, 0, 0.4, 1, 1, 1
  klfo lfo 0.005, 4.8
  kcps = cpsmidinn(p4) * (1 + klfo * kvd)
  kenv linsegr 0, 0.05, 1, 0.3, 0.85, 0.18, 0
  iph random 0, 1
  kwide oscili 0.05, 0.7, -1, iph
  kpw linseg 0.44, p3, 0.3, 1, 0.3
  a1 vco2 0.4, kcps * cent(3), 2, kpw + kwide
  a2 vco2 0.4, kcps * cent(-3), 2, 0.74 - kpw - kwide
  a3 oscili 0.3, kcps
  aL zdf_ladder a1 + a3, 2600 + 1400 * kenv, 0.9
  aR zdf_ladder a2 + a3, 2600 + 1400 * kenv, 0.9
  aL *= kenv * p5 * sqrt(1 - p6)
  aR *= kenv * p5 * sqrt(p6)
  gaTopL += aL
  gaTopR += aR
  gaDelL += aL * 0.28
  gaDelR += aR * 0.28
  gaRevL += aL * 0.32
  gaRevR += aR * 0.32
endin

; Arpeggio: note, level, pan, cutoff.
instr Arp
  icps = cpsmidinn(p4)
  kenv expseg 1, p3, 0.12, 0.03, 0.001
  katt linseg 0, 0.002, 1, 1, 1
  kcut expseg p7, 0.11, p7 * 0.25 + 150, 1, p7 * 0.15 + 100
  iph random 0, 1
  a1 vco2 0.4, icps * cent(3), 16, 0.5, iph
  a2 vco2 0.3, icps * cent(-3), 2, 0.36
  asig zdf_ladder a1 + a2, kcut, 3.0
  ToMusic asig * kenv * katt * p5, p6, 0.28, 0.12
endin

; Riser: level at its top.
instr Riser
  kenv expseg 0.02, p3 * 0.96, 1, p3 * 0.04, 0.01
  kcf expseg 300, p3, 7500
  an1 random -1, 1
  an2 random -1, 1
  aL butterbp an1, kcf, kcf * 0.5
  aR butterbp an2, kcf * 1.06, kcf * 0.5
  ktone expseg 110, p3, 880
  a1 vco2 0.12, ktone
  a1 butterlp a1, kcf
  gaFxL += (aL + a1) * kenv * p4
  gaFxR += (aR + a1) * kenv * p4
  gaRevL += aL * kenv * p4 * 0.3
  gaRevR += aR * kenv * p4 * 0.3
endin

; Swell: level at its top, note. A cymbal and a fifth played backwards, cut off at the end; heard even
; where all else is muted.
instr Swell
  kenv expseg 0.003, p3 * 0.5, 0.06, p3 * 0.5 - 0.012, 1, 0.012, 0.001
  an1 random -1, 1
  an2 random -1, 1
  khigh expseg 6000, p3, 1800
  aL butterhp an1, khigh
  aR butterhp an2, khigh * 1.04
  a1 vco2 0.3, cpsmidinn(p5) * cent(7)
  a2 vco2 0.3, cpsmidinn(p5) * cent(-7)
  a3 vco2 0.3, cpsmidinn(p5 + 7) * cent(5)
  a4 vco2 0.3, cpsmidinn(p5 + 7) * cent(-5)
  kcut expseg 300, p3, 6000
  a1 moogladder2 a1 + a3, kcut, 0.1
  a2 moogladder2 a2 + a4, kcut, 0.1
  gaOpenL += (aL * 0.5 + a1) * kenv * p4
  gaOpenR += (aR * 0.5 + a2) * kenv * p4
endin

; Impact: level. A deep fall, a burst of air.
instr Impact
  kcps expseg 130, 0.5, 38, 2.5, 30
  kenv expseg 1, 2.6, 0.002, 1, 0.0005
  a1 oscili 0.9, kcps
  an1 pinker
  an2 pinker
  kn expseg 1, 1.8, 0.002, 2, 0.0005
  aL butterlp an1, 3800
  aR butterlp an2, 3600
  gaFxL += (tanh(a1 * 1.5) * kenv + aL * kn * 0.8) * p4
  gaFxR += (tanh(a1 * 1.5) * kenv + aR * kn * 0.8) * p4
  gaRevL += aL * kn * p4 * 0.7
  gaRevR += aR * kn * p4 * 0.7
endin

; Dive: level. Water closing over the head: noise whose band falls, apart on both sides.
instr Dive
  an1 random -1, 1
  an2 random -1, 1
  kcf1 expseg 7000, p3, 180
  kcf2 expseg 5600, p3, 160
  kenv expseg 1, p3, 0.004
  aL butterbp an1, kcf1, kcf1 * 0.9
  aR butterbp an2, kcf2, kcf2 * 0.9
  gaAirL += aL * kenv * p4
  gaAirR += aR * kenv * p4
  gaRevL += aL * kenv * p4 * 0.3
  gaRevR += aR * kenv * p4 * 0.3
endin

; Bubble: note, level, pan: a sine that rises as it goes.
instr Bubble
  kcps expseg cpsmidinn(p4), p3, cpsmidinn(p4) * 1.9
  kenv expseg 0.05, 0.012, 1, p3, 0.002
  a1 oscili 1, kcps
  ToAir a1 * kenv * p5, p6, 0.25, 0.5
endin

; Deep: level at start, in the middle, at the end. The weight of water: slow dark noise.
instr Deep
  kenv linseg p4, p3 * 0.3, p5, p3 * 0.7, p6
  an1 pinker
  an2 pinker
  kl1 lfo 0.5, 0.19
  kl2 lfo 0.5, 0.23
  aL butterbp an1, 300 * pow(2.2, kl1), 240
  aR butterbp an2, 330 * pow(2.2, kl2), 260
  gaFxL += aL * kenv
  gaFxR += aR * kenv
endin

; The fader of the whole mix: dB at start and end.
instr Fader
  kdb line p4, p3, p5
  gkFade = ampdb(kdb)
endin

; Nothing sounds but the bus Open; 6 ms of slope inside at both ends.
instr Mute
  kval linseg 1, 0.006, 0, p3 - 0.012, 0, 0.006, 1
  gkMute = kval
endin

; Water: the corner of the filter over the mix in Hz, at start and end; it stays at the end's.
instr Water
  kcut expseg p4, p3, p5
  gkWater = kcut
endin

; Two poles twice, and a slow chorus that grows as the corner falls.
opcode UnderWater, aa, aakk
  aL, aR, kcut, kdepth xin
  kl1 lfo 1, 0.31
  kl2 lfo 1, 0.37
  adlL interp (5 / 44.1) + kdepth * (3 + 1.8 * kl1)
  adlR interp (5 / 44.1) + kdepth * (3 + 1.8 * kl2)
  aL vdelay3 aL, adlL, 20
  aR vdelay3 aR, adlR, 20
  kcut limit kcut, 40, 20000
  aL butterlp aL, kcut
  aR butterlp aR, kcut
  aL butterlp aL, kcut
  aR butterlp aR, kcut
  xout aL, aR
endop

; Everything together: ping-pong delay of a dotted eighth, reverb, drum room, the pump of the kick.
instr Mix
  abackL init 0
  abackR init 0
  aindL = gaDelL + abackR * 0.42
  aindR = gaDelR + abackL * 0.42
  adl delay aindL, 0.375
  adr delay aindR, 0.375
  abackL butterlp adl, 4800
  abackL butterhp abackL, 250
  abackR butterlp adr, 4800
  abackR butterhp abackR, 250
  arinL butterhp gaRevL + abackL * 0.15, 180
  arinR butterhp gaRevR + abackR * 0.15, 180
  arvL, arvR reverbsc arinL, arinR, 0.88, 9000
  armL butterhp gaRoomL, 220
  armR butterhp gaRoomR, 220
  aroL, aroR reverbsc armL, armR, 0.5, 7500
  aduck interp gkDuck
  ahalf interp 0.5 + 0.5 * gkDuck
  atop interp 0.6 + 0.4 * gkDuck
  kdepth = 1 - log(limit(gkWater, 400, 20000) / 400) / log(50)
  amusL, amusR UnderWater gaMusL * aduck, gaMusR * aduck, gkWater, kdepth
  atopL, atopR UnderWater gaTopL * atop, gaTopR * atop, gkWater * 3.5, kdepth * 0.5
  adrmL, adrmR UnderWater gaDrumL + aroL, gaDrumR + aroR, gkWater * 1.5, 0
  afxL, afxR UnderWater (gaFxL + abackL + arvL * 0.8) * ahalf, (gaFxR + abackR + arvR * 0.8) * ahalf, gkWater * 4, 0
  ; The drums, pressed a little: peaks round, body stays.
  adrmL = tanh(adrmL * 1.2) * 0.75
  adrmR = tanh(adrmR * 1.2) * 0.75
  ; Low notes stand in the middle: what is below 120 Hz of the music is made mono.
  amusL = (amusL + atopL) * 1.25
  amusR = (amusR + atopR) * 1.25
  alowL butterlp amusL, 120
  alowR butterlp amusR, 120
  amid = (alowL + alowR) * 0.5
  amusL = amusL - alowL + amid
  amusR = amusR - alowR + amid
  aL = adrmL + gaBass * aduck + amusL + afxL + gaAirL * atop * 1.25
  aR = adrmR + gaBass * aduck + amusR + afxR + gaAirR * atop * 1.25
  amute interp gkMute
  afade interp gkFade
  aL butterhp (aL * amute + gaOpenL) * afade, 12
  aR butterhp (aR * amute + gaOpenR) * afade, 12
  outs aL * 0.5, aR * 0.5
  gaDrumL = 0
  gaDrumR = 0
  gaBass = 0
  gaMusL = 0
  gaMusR = 0
  gaTopL = 0
  gaTopR = 0
  gaAirL = 0
  gaAirR = 0
  gaFxL = 0
  gaFxR = 0
  gaOpenL = 0
  gaOpenR = 0
  gaDelL = 0
  gaDelR = 0
  gaRevL = 0
  gaRevR = 0
  gaRoomL = 0
  gaRoomR = 0
endin
