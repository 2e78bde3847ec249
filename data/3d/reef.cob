# reef: made by art/build.sh, do not edit
Name reef
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 225
-1.4532 1.71 0
-2.1058 1.5498 0.2603
-1.1062 1.5996 0.3625
-2.864 1.2873 0.5542
-1.9654 1.6736 0.7611
-0.9048 1.7227 0.7874
-3.4358 0 1.1655
-2.4849 0.4135 1.2431
-3.1844 0.6977 0.8201
-1.9011 0.8545 1.6107
-2.4476 1.1002 1.1018
0 1.0184 1.1887
-0.4942 1.5523 1.1341
-0.8601 1.0443 1.4879
-1.6895 1.6981 1.388
-0.6943 1.7775 0
-0.422 1.7967 0.3827
0 1.9211 0
0.4016 1.2616 0.8557
0.7652 1.457 0.6275
0 1.5246 0.6544
1.5632 1.8396 0
0.8188 2.0963 0
1.1259 1.628 0.3807
0.3969 1.6899 0.3474
-1.4055 2.0323 -0.4196
-0.5226 2.2251 -0.4204
1.4446 2.0889 -0.425
0.5599 2.3836 -0.4344
-2.5777 1.8971 -0.3433
-3.3791 1.5188 -0.6561
-3.459 1.5547 0
-3.7133 0 0
-3.3884 0.6811 -0.2962
-3.5087 0 -0.4555
-3.8609 0 0.6048
-4.0607 0.8163 0.3852
1.8018 1.326 0.254
1.6561 1.4102 0.6496
2.1944 0.9863 0.4777
0.6411 0.7784 1.1026
1.2583 0.5656 1.0919
1.1615 1.1674 0.9685
2.2873 0 0.8041
2.4078 0.5276 0.7295
1.8548 0.3086 1.0283
1.9763 0.8883 0.9173
0 0.4716 1.1845
-0.8295 0.3728 1.5933
0 0 1.3818
-2.6437 -0.4399 1.3694
-1.3863 -0.6231 1.1932
-1.8854 0 1.6048
0 -1.1146 1.2481
0 -0.5774 1.4331
-0.7155 -0.8687 1.2237
-0.8263 -0.3714 1.5874
-3.24 -0.7099 0.8454
-3.6099 -0.7256 0.3674
-3.0009 -1.3488 0.7092
-3.1949 -0.6422 -0.2447
-2.0448 -2.4062 0.1533
-2.6036 -1.9161 0.4007
-2.5943 -1.9092 -0.1533
-3.0501 -1.371 0.0662
-3.1172 -1.4011 -0.5004
2.0618 1.5173 -0.2318
1.3239 -1.5579 0
2.2564 -1.6605 0.3247
1.2528 -1.8115 0.3984
2.5351 -1.1395 0.575
1.7141 -1.4596 0.6982
0.7596 -1.4463 0.6587
1.8837 -0.3134 1.0517
2.3889 -0.5234 0.7273
1.3724 -0.6168 1.188
1.9957 -0.897 0.9333
0.4269 -1.3411 0.9434
0.7641 -0.9278 1.2766
1.2156 -1.2217 1.0451
0.6492 -1.662 0
0.4217 -1.7953 0.3826
0 -2.065 0.0348
-0.3952 -1.2416 0.8493
-0.9448 -1.7989 0.8032
0 -1.4405 0.643
-0.9657 -2.4722 0.1057
-1.7501 -2.5306 0.6918
-0.5696 -2.425 0.5647
1.3675 -1.9773 -0.4143
0.5208 -2.2173 -0.3999
-1.6861 -2.438 -0.4243
-0.6024 -2.5649 -0.4359
2.0666 -1.5209 -0.2118
2.566 -1.1534 -0.4516
2.6191 -1.1772 0.0421
2.8184 0 0.1678
2.8525 -0.5734 -0.113
2.8108 0 -0.2572
2.5402 -0.5566 -0.5206
2.5254 0 0.4991
2.7197 -0.5467 0.3321
0.6391 -0.2873 1.2092
1.4376 0 1.2124
0.6507 0.2925 1.219
-2.0701 -1.7627 0.827
-1.1042 -1.1098 0.901
-2.0175 -0.9068 0.8941
2.2407 0.4504 0.3131
2.2437 1.0085 -0.4195
2.4265 0.4878 -0.0961
2.6074 0.5713 -0.5317
2.3055 1.0363 0.0398
1.3156 1.4195 -0.1
1.0965 1.3046 0.3132
1.3184 1.6022 0.4676
0.8891 1.1415 0.5535
1.1231 1.3884 0.9172
1.4908 1.5285 1.0103
0.5627 0.6 1.1848
0.8174 0.8147 1.6207
0.6135 0.9359 0.9995
1.1847 0.9831 1.7697
0.8618 1.1561 1.3943
1.9 1.1574 1.5997
1.7327 1.2264 1.0602
1.5379 1.1239 1.9015
1.382 1.2205 1.2817
1.4989 1.8237 -0.1
1.6708 1.763 0.4838
1.9 2.1379 -0.1
2.0967 1.3362 1.3117
2.3677 1.6611 1.1078
1.9 1.4933 0.9922
2.8158 1.8842 -0.1
2.3053 1.8365 -0.1
2.6794 1.9429 0.6842
2.1537 1.8872 0.5232
1.3646 1.5225 -0.6144
1.6472 1.8828 -0.7113
2.5691 1.753 -0.7054
2.157 1.9037 -0.7161
0.9788 1.4079 -0.3441
0.7188 1.2327 -0.7417
0.7089 1.238 -0.0361
0.5275 0.6 -0.0117
0.4933 0.937 -0.3847
0.6158 0.6 -0.6795
0.579 0.6 0.5206
0.6137 0.9081 0.375
3.2577 1.7907 0.4431
3.1009 1.8185 1.4761
3.2979 1.3488 0.8849
2.2548 1.1133 1.873
2.6814 1.0185 2.0775
2.6188 1.4609 1.8385
3.334 0.6 1.4885
3.282 0.9608 1.0949
3.0655 0.8311 1.9131
3.1642 1.2771 1.737
1.9 0.9691 2.4501
1.4932 0.8179 2.3466
1.9 0.6 2.4318
0.7972 0.3813 1.6351
1.162 0.2047 1.8475
1.2104 0.6 1.6658
1.9 -0.0144 1.8783
1.9 0.2782 2.1084
1.5178 0.0469 2.0807
1.551 0.4131 2.0735
0.7487 0.2994 0.9064
0.6793 0.3076 0.3669
0.9525 0.0925 0.5051
0.5752 0.2827 -0.343
1.2556 -0.3037 -0.0901
1.0864 -0.1135 0.3389
0.9445 -0.238 -0.335
0.7927 0.0069 -0.0145
0.8265 0.025 -0.712
3.0939 1.647 -0.5853
2.701 -0.5233 -0.0953
3.0503 -0.4088 0.4086
2.6031 -0.6115 0.6881
3.2682 -0.1329 0.9078
2.9246 -0.4396 1.2462
2.3649 -0.4548 1.2746
3.1688 0.3484 2.07
3.3237 0.2283 1.1523
2.7493 0.1451 2.1956
3.1599 -0.0748 1.7444
2.1174 -0.214 1.5347
2.307 0.0112 2.1442
2.575 -0.2084 1.7785
2.3164 -0.6703 -0.1
2.1547 -0.6922 0.642
1.9 -0.5888 -0.1
1.6836 -0.21 1.5313
1.4871 -0.3368 1.0388
1.9 -0.392 1.1634
1.5366 -0.5086 -0.1
1.4215 -0.2245 0.4231
1.663 -0.6023 0.5634
2.5503 -0.5205 -0.6972
2.1485 -0.6607 -0.7063
1.3131 -0.4112 -0.6699
1.6643 -0.5956 -0.6913
2.9696 -0.338 -0.4042
3.0338 -0.0073 -0.7286
3.3013 -0.1506 -0.1
3.1874 0.6 -0.1
3.2214 0.2835 -0.4706
3.244 0.6 -0.6917
3.1451 0.6 0.4715
3.3069 0.263 0.3419
2.3623 0.3524 2.6883
2.7701 0.6 2.3023
2.2876 0.8076 2.2549
1.1725 -0.1382 0.8624
1.2555 -0.1719 1.6013
1.0118 0.1242 1.1098
3.2518 0.9238 0.2904
3.2175 0.9156 -0.496
3.285 1.3418 -0.1
3.0757 1.2297 -0.7401
0 0 5.907
Texture Vertices 83
0.9206 0.9683
0.4127 0.7778
0.9206 0.8413
0.7302 0.7778
0.9841 0.7778
0.4762 0.7143
0.7302 0.9048
0.3492 0.7143
0.3492 0.9048
0.9206 0.7143
0.5397 0.7143
0.8571 0.9048
0.6667 0.7143
0.1587 0.9048
0.7937 0.9683
0.5397 0.7778
0.9841 0.9683
0.6032 0.9048
0.4762 0.9048
0.0952 0.9048
0.0952 0.7778
0.3492 0.7778
0.2222 0.9683
0.0317 0.9683
0.4127 0.9683
0.7937 0.7143
0.9206 0.7778
0.6032 0.9683
0.8571 0.7778
0.7937 0.9048
0.1587 0.7143
0.3492 0.8413
0.0952 0.7143
0.1587 0.8413
0.5397 0.8413
0.0317 0.6508
0.7302 0.7143
0.4127 0.7143
0.0952 0.6508
0.9841 0.7143
0.5397 0.9048
0.8571 0.8413
0.8571 0.9683
0.7302 0.9683
0.6667 0.9683
0.0317 0.7143
0.6032 0.7143
0.8571 0.7143
0.0317 0.9048
0.2857 0.9683
0.6032 0.8413
0.4762 0.7778
0.2857 0.7143
0.2222 0.7143
0.7937 0.8413
0.5397 0.9683
0.1587 0.9683
0.7302 0.8413
0.9841 0.8413
0.2857 0.9048
0.0317 0.7778
0.9206 0.9048
0.0317 0.8413
0.2222 0.8413
0.4127 0.9048
0.3492 0.9683
0.6667 0.7778
0.2222 0.9048
0.2222 0.7778
0.6032 0.7778
0.1587 0.7778
0.0952 0.8413
0.4762 0.8413
0.9841 0.9048
0.1587 0.6508
0.6667 0.9048
0.2857 0.8413
0.7937 0.7778
0.4127 0.8413
0.0952 0.9683
0.4762 0.9683
0.2857 0.7778
0.6667 0.8413
Faces 397
Face verts 3 flags 0 mat 0
<0,0> <2,0> <1,0>
Face verts 3 flags 0 mat 0
<3,1> <1,1> <4,1>
Face verts 3 flags 0 mat 0
<5,2> <4,2> <2,2>
Face verts 3 flags 0 mat 0
<1,3> <2,3> <4,3>
Face verts 3 flags 0 mat 0
<6,4> <8,4> <7,4>
Face verts 3 flags 0 mat 0
<9,5> <7,5> <10,5>
Face verts 3 flags 0 mat 0
<3,6> <10,6> <8,6>
Face verts 3 flags 0 mat 0
<7,4> <8,4> <10,4>
Face verts 3 flags 0 mat 0
<11,7> <13,7> <12,7>
Face verts 3 flags 0 mat 0
<5,8> <12,8> <14,8>
Face verts 3 flags 0 mat 0
<9,9> <14,9> <13,9>
Face verts 3 flags 0 mat 0
<12,10> <13,10> <14,10>
Face verts 3 flags 0 mat 0
<3,11> <4,11> <10,11>
Face verts 3 flags 0 mat 0
<9,12> <10,12> <14,12>
Face verts 3 flags 0 mat 0
<5,13> <14,13> <4,13>
Face verts 3 flags 0 mat 0
<10,13> <4,13> <14,13>
Face verts 3 flags 0 mat 0
<0,14> <15,14> <2,14>
Face verts 3 flags 0 mat 0
<5,15> <2,15> <16,15>
Face verts 3 flags 0 mat 0
<17,14> <16,14> <15,14>
Face verts 3 flags 0 mat 0
<2,16> <15,16> <16,16>
Face verts 3 flags 0 mat 0
<11,4> <12,4> <18,4>
Face verts 3 flags 0 mat 0
<19,5> <18,5> <20,5>
Face verts 3 flags 0 mat 0
<5,17> <20,17> <12,17>
Face verts 3 flags 0 mat 0
<18,18> <12,18> <20,18>
Face verts 3 flags 0 mat 0
<21,14> <23,14> <22,14>
Face verts 3 flags 0 mat 0
<17,14> <22,14> <24,14>
Face verts 3 flags 0 mat 0
<19,3> <24,3> <23,3>
Face verts 3 flags 0 mat 0
<22,19> <23,19> <24,19>
Face verts 3 flags 0 mat 0
<5,20> <16,20> <20,20>
Face verts 3 flags 0 mat 0
<19,21> <20,21> <24,21>
Face verts 3 flags 0 mat 0
<17,16> <24,16> <16,16>
Face verts 3 flags 0 mat 0
<20,3> <16,3> <24,3>
Face verts 3 flags 0 mat 0
<0,22> <25,22> <15,22>
Face verts 3 flags 0 mat 0
<17,22> <15,22> <26,22>
Face verts 3 flags 0 mat 0
<15,23> <25,23> <26,23>
Face verts 3 flags 0 mat 0
<21,22> <22,22> <27,22>
Face verts 3 flags 0 mat 0
<17,22> <28,22> <22,22>
Face verts 3 flags 0 mat 0
<27,23> <22,23> <28,23>
Face verts 3 flags 0 mat 0
<17,23> <26,23> <28,23>
Face verts 3 flags 0 mat 0
<0,23> <29,23> <25,23>
Face verts 3 flags 0 mat 0
<0,24> <1,24> <29,24>
Face verts 3 flags 0 mat 0
<30,23> <29,23> <31,23>
Face verts 3 flags 0 mat 0
<3,3> <31,3> <1,3>
Face verts 3 flags 0 mat 0
<29,24> <1,24> <31,24>
Face verts 3 flags 0 mat 0
<32,23> <34,23> <33,23>
Face verts 3 flags 0 mat 0
<6,17> <35,17> <8,17>
Face verts 3 flags 0 mat 0
<3,25> <8,25> <36,25>
Face verts 3 flags 0 mat 0
<32,26> <36,26> <35,26>
Face verts 3 flags 0 mat 0
<8,25> <35,25> <36,25>
Face verts 3 flags 0 mat 0
<30,23> <31,23> <33,23>
Face verts 3 flags 0 mat 0
<32,27> <33,27> <36,27>
Face verts 3 flags 0 mat 0
<3,26> <36,26> <31,26>
Face verts 3 flags 0 mat 0
<33,27> <31,27> <36,27>
Face verts 3 flags 0 mat 0
<21,19> <37,19> <23,19>
Face verts 3 flags 0 mat 0
<19,21> <23,21> <38,21>
Face verts 3 flags 0 mat 0
<39,3> <38,3> <37,3>
Face verts 3 flags 0 mat 0
<23,28> <37,28> <38,28>
Face verts 3 flags 0 mat 0
<11,4> <18,4> <40,4>
Face verts 3 flags 0 mat 0
<41,4> <40,4> <42,4>
Face verts 3 flags 0 mat 0
<19,29> <42,29> <18,29>
Face verts 3 flags 0 mat 0
<40,4> <18,4> <42,4>
Face verts 3 flags 0 mat 0
<43,30> <45,30> <44,30>
Face verts 3 flags 0 mat 0
<39,31> <44,31> <46,31>
Face verts 3 flags 0 mat 0
<41,4> <46,4> <45,4>
Face verts 3 flags 0 mat 0
<44,32> <45,32> <46,32>
Face verts 3 flags 0 mat 0
<19,33> <38,33> <42,33>
Face verts 3 flags 0 mat 0
<41,4> <42,4> <46,4>
Face verts 3 flags 0 mat 0
<39,34> <46,34> <38,34>
Face verts 3 flags 0 mat 0
<42,30> <38,30> <46,30>
Face verts 3 flags 0 mat 0
<11,7> <47,7> <13,7>
Face verts 3 flags 0 mat 0
<9,35> <13,35> <48,35>
Face verts 3 flags 0 mat 0
<49,12> <48,12> <47,12>
Face verts 3 flags 0 mat 0
<13,36> <47,36> <48,36>
Face verts 3 flags 0 mat 0
<6,7> <7,7> <50,7>
Face verts 3 flags 0 mat 0
<51,12> <50,12> <52,12>
Face verts 3 flags 0 mat 0
<9,9> <52,9> <7,9>
Face verts 3 flags 0 mat 0
<50,36> <7,36> <52,36>
Face verts 3 flags 0 mat 0
<53,37> <55,37> <54,37>
Face verts 3 flags 0 mat 0
<49,25> <54,25> <56,25>
Face verts 3 flags 0 mat 0
<51,10> <56,10> <55,10>
Face verts 3 flags 0 mat 0
<54,36> <55,36> <56,36>
Face verts 3 flags 0 mat 0
<9,38> <48,38> <52,38>
Face verts 3 flags 0 mat 0
<51,25> <52,25> <56,25>
Face verts 3 flags 0 mat 0
<49,39> <56,39> <48,39>
Face verts 3 flags 0 mat 0
<52,35> <48,35> <56,35>
Face verts 3 flags 0 mat 0
<6,40> <57,40> <35,40>
Face verts 3 flags 0 mat 0
<32,26> <35,26> <58,26>
Face verts 3 flags 0 mat 0
<59,41> <58,41> <57,41>
Face verts 3 flags 0 mat 0
<35,20> <57,20> <58,20>
Face verts 3 flags 0 mat 0
<32,23> <60,23> <34,23>
Face verts 3 flags 0 mat 0
<61,42> <63,42> <62,42>
Face verts 3 flags 0 mat 0
<59,26> <62,26> <64,26>
Face verts 3 flags 0 mat 0
<65,23> <64,23> <63,23>
Face verts 3 flags 0 mat 0
<62,43> <63,43> <64,43>
Face verts 3 flags 0 mat 0
<32,44> <58,44> <60,44>
Face verts 3 flags 0 mat 0
<65,23> <60,23> <64,23>
Face verts 3 flags 0 mat 0
<59,26> <64,26> <58,26>
Face verts 3 flags 0 mat 0
<60,44> <58,44> <64,44>
Face verts 3 flags 0 mat 0
<21,23> <27,23> <66,23>
Face verts 3 flags 0 mat 0
<67,16> <69,16> <68,16>
Face verts 3 flags 0 mat 0
<70,39> <68,39> <71,39>
Face verts 3 flags 0 mat 0
<72,25> <71,25> <69,25>
Face verts 3 flags 0 mat 0
<68,3> <69,3> <71,3>
Face verts 3 flags 0 mat 0
<43,30> <74,30> <73,30>
Face verts 3 flags 0 mat 0
<75,4> <73,4> <76,4>
Face verts 3 flags 0 mat 0
<70,7> <76,7> <74,7>
Face verts 3 flags 0 mat 0
<73,45> <74,45> <76,45>
Face verts 3 flags 0 mat 0
<53,18> <78,18> <77,18>
Face verts 3 flags 0 mat 0
<72,18> <77,18> <79,18>
Face verts 3 flags 0 mat 0
<75,30> <79,30> <78,30>
Face verts 3 flags 0 mat 0
<77,45> <78,45> <79,45>
Face verts 3 flags 0 mat 0
<70,37> <71,37> <76,37>
Face verts 3 flags 0 mat 0
<75,4> <76,4> <79,4>
Face verts 3 flags 0 mat 0
<72,11> <79,11> <71,11>
Face verts 3 flags 0 mat 0
<76,32> <71,32> <79,32>
Face verts 3 flags 0 mat 0
<67,42> <80,42> <69,42>
Face verts 3 flags 0 mat 0
<72,39> <69,39> <81,39>
Face verts 3 flags 0 mat 0
<82,42> <81,42> <80,42>
Face verts 3 flags 0 mat 0
<69,3> <80,3> <81,3>
Face verts 3 flags 0 mat 0
<53,13> <77,13> <83,13>
Face verts 3 flags 0 mat 0
<84,7> <83,7> <85,7>
Face verts 3 flags 0 mat 0
<72,33> <85,33> <77,33>
Face verts 3 flags 0 mat 0
<83,29> <77,29> <85,29>
Face verts 3 flags 0 mat 0
<61,26> <87,26> <86,26>
Face verts 3 flags 0 mat 0
<82,16> <86,16> <88,16>
Face verts 3 flags 0 mat 0
<84,46> <88,46> <87,46>
Face verts 3 flags 0 mat 0
<86,3> <87,3> <88,3>
Face verts 3 flags 0 mat 0
<72,47> <81,47> <85,47>
Face verts 3 flags 0 mat 0
<84,12> <85,12> <88,12>
Face verts 3 flags 0 mat 0
<82,26> <88,26> <81,26>
Face verts 3 flags 0 mat 0
<85,39> <81,39> <88,39>
Face verts 3 flags 0 mat 0
<67,22> <89,22> <80,22>
Face verts 3 flags 0 mat 0
<82,22> <80,22> <90,22>
Face verts 3 flags 0 mat 0
<80,48> <89,48> <90,48>
Face verts 3 flags 0 mat 0
<61,24> <86,24> <91,24>
Face verts 3 flags 0 mat 0
<82,49> <92,49> <86,49>
Face verts 3 flags 0 mat 0
<91,23> <86,23> <92,23>
Face verts 3 flags 0 mat 0
<82,23> <90,23> <92,23>
Face verts 3 flags 0 mat 0
<67,23> <93,23> <89,23>
Face verts 3 flags 0 mat 0
<67,44> <68,44> <93,44>
Face verts 3 flags 0 mat 0
<94,23> <93,23> <95,23>
Face verts 3 flags 0 mat 0
<70,26> <95,26> <68,26>
Face verts 3 flags 0 mat 0
<93,44> <68,44> <95,44>
Face verts 3 flags 0 mat 0
<96,24> <98,24> <97,24>
Face verts 3 flags 0 mat 0
<94,23> <97,23> <99,23>
Face verts 3 flags 0 mat 0
<98,23> <99,23> <97,23>
Face verts 3 flags 0 mat 0
<43,50> <100,50> <74,50>
Face verts 3 flags 0 mat 0
<70,21> <74,21> <101,21>
Face verts 3 flags 0 mat 0
<96,26> <101,26> <100,26>
Face verts 3 flags 0 mat 0
<74,51> <100,51> <101,51>
Face verts 3 flags 0 mat 0
<94,23> <95,23> <97,23>
Face verts 3 flags 0 mat 0
<96,42> <97,42> <101,42>
Face verts 3 flags 0 mat 0
<70,26> <101,26> <95,26>
Face verts 3 flags 0 mat 0
<97,43> <95,43> <101,43>
Face verts 3 flags 0 mat 0
<53,5> <54,5> <78,5>
Face verts 3 flags 0 mat 0
<75,52> <78,52> <102,52>
Face verts 3 flags 0 mat 0
<49,10> <102,10> <54,10>
Face verts 3 flags 0 mat 0
<78,37> <54,37> <102,37>
Face verts 3 flags 0 mat 0
<43,4> <73,4> <45,4>
Face verts 3 flags 0 mat 0
<41,45> <45,45> <103,45>
Face verts 3 flags 0 mat 0
<75,32> <103,32> <73,32>
Face verts 3 flags 0 mat 0
<45,45> <73,45> <103,45>
Face verts 3 flags 0 mat 0
<11,32> <40,32> <47,32>
Face verts 3 flags 0 mat 0
<49,7> <47,7> <104,7>
Face verts 3 flags 0 mat 0
<41,45> <104,45> <40,45>
Face verts 3 flags 0 mat 0
<47,30> <40,30> <104,30>
Face verts 3 flags 0 mat 0
<75,53> <102,53> <103,53>
Face verts 3 flags 0 mat 0
<41,30> <103,30> <104,30>
Face verts 3 flags 0 mat 0
<49,7> <104,7> <102,7>
Face verts 3 flags 0 mat 0
<103,53> <102,53> <104,53>
Face verts 3 flags 0 mat 0
<61,26> <62,26> <87,26>
Face verts 3 flags 0 mat 0
<84,7> <87,7> <105,7>
Face verts 3 flags 0 mat 0
<59,54> <105,54> <62,54>
Face verts 3 flags 0 mat 0
<87,36> <62,36> <105,36>
Face verts 3 flags 0 mat 0
<53,8> <83,8> <55,8>
Face verts 3 flags 0 mat 0
<51,45> <55,45> <106,45>
Face verts 3 flags 0 mat 0
<84,30> <106,30> <83,30>
Face verts 3 flags 0 mat 0
<55,13> <83,13> <106,13>
Face verts 3 flags 0 mat 0
<6,45> <50,45> <57,45>
Face verts 3 flags 0 mat 0
<59,52> <57,52> <107,52>
Face verts 3 flags 0 mat 0
<51,18> <107,18> <50,18>
Face verts 3 flags 0 mat 0
<57,13> <50,13> <107,13>
Face verts 3 flags 0 mat 0
<84,30> <105,30> <106,30>
Face verts 3 flags 0 mat 0
<51,4> <106,4> <107,4>
Face verts 3 flags 0 mat 0
<59,52> <107,52> <105,52>
Face verts 3 flags 0 mat 0
<106,30> <105,30> <107,30>
Face verts 3 flags 0 mat 0
<61,22> <91,22> <63,22>
Face verts 3 flags 0 mat 0
<43,50> <44,50> <100,50>
Face verts 3 flags 0 mat 0
<96,26> <100,26> <108,26>
Face verts 3 flags 0 mat 0
<39,15> <108,15> <44,15>
Face verts 3 flags 0 mat 0
<100,51> <44,51> <108,51>
Face verts 3 flags 0 mat 0
<109,23> <111,23> <110,23>
Face verts 3 flags 0 mat 0
<96,24> <110,24> <98,24>
Face verts 3 flags 0 mat 0
<111,23> <98,23> <110,23>
Face verts 3 flags 0 mat 0
<21,55> <66,55> <37,55>
Face verts 3 flags 0 mat 0
<39,16> <37,16> <112,16>
Face verts 3 flags 0 mat 0
<109,23> <112,23> <66,23>
Face verts 3 flags 0 mat 0
<37,27> <66,27> <112,27>
Face verts 3 flags 0 mat 0
<96,42> <108,42> <110,42>
Face verts 3 flags 0 mat 0
<109,56> <110,56> <112,56>
Face verts 3 flags 0 mat 0
<39,3> <112,3> <108,3>
Face verts 3 flags 0 mat 0
<110,43> <108,43> <112,43>
Face verts 3 flags 0 mat 0
<113,57> <115,57> <114,57>
Face verts 3 flags 0 mat 0
<116,26> <114,26> <117,26>
Face verts 3 flags 0 mat 0
<118,58> <117,58> <115,58>
Face verts 3 flags 0 mat 0
<114,26> <115,26> <117,26>
Face verts 3 flags 0 mat 0
<119,59> <121,59> <120,59>
Face verts 3 flags 0 mat 0
<122,60> <120,60> <123,60>
Face verts 3 flags 0 mat 0
<116,29> <123,29> <121,29>
Face verts 3 flags 0 mat 0
<120,40> <121,40> <123,40>
Face verts 3 flags 0 mat 0
<124,34> <126,34> <125,34>
Face verts 3 flags 0 mat 0
<118,45> <125,45> <127,45>
Face verts 3 flags 0 mat 0
<122,21> <127,21> <126,21>
Face verts 3 flags 0 mat 0
<125,61> <126,61> <127,61>
Face verts 3 flags 0 mat 0
<116,62> <117,62> <123,62>
Face verts 3 flags 0 mat 0
<122,63> <123,63> <127,63>
Face verts 3 flags 0 mat 0
<118,64> <127,64> <117,64>
Face verts 3 flags 0 mat 0
<123,13> <117,13> <127,13>
Face verts 3 flags 0 mat 0
<113,65> <128,65> <115,65>
Face verts 3 flags 0 mat 0
<118,66> <115,66> <129,66>
Face verts 3 flags 0 mat 0
<130,24> <129,24> <128,24>
Face verts 3 flags 0 mat 0
<115,20> <128,20> <129,20>
Face verts 3 flags 0 mat 0
<124,18> <125,18> <131,18>
Face verts 3 flags 0 mat 0
<132,13> <131,13> <133,13>
Face verts 3 flags 0 mat 0
<118,30> <133,30> <125,30>
Face verts 3 flags 0 mat 0
<131,67> <125,67> <133,67>
Face verts 3 flags 0 mat 0
<134,63> <136,63> <135,63>
Face verts 3 flags 0 mat 0
<130,24> <135,24> <137,24>
Face verts 3 flags 0 mat 0
<132,20> <137,20> <136,20>
Face verts 3 flags 0 mat 0
<135,51> <136,51> <137,51>
Face verts 3 flags 0 mat 0
<118,57> <129,57> <133,57>
Face verts 3 flags 0 mat 0
<132,31> <133,31> <137,31>
Face verts 3 flags 0 mat 0
<130,68> <137,68> <129,68>
Face verts 3 flags 0 mat 0
<133,69> <129,69> <137,69>
Face verts 3 flags 0 mat 0
<113,56> <138,56> <128,56>
Face verts 3 flags 0 mat 0
<130,22> <128,22> <139,22>
Face verts 3 flags 0 mat 0
<128,44> <138,44> <139,44>
Face verts 3 flags 0 mat 0
<134,22> <135,22> <140,22>
Face verts 3 flags 0 mat 0
<130,22> <141,22> <135,22>
Face verts 3 flags 0 mat 0
<113,24> <142,24> <138,24>
Face verts 3 flags 0 mat 0
<113,23> <114,23> <142,23>
Face verts 3 flags 0 mat 0
<143,24> <142,24> <144,24>
Face verts 3 flags 0 mat 0
<116,20> <144,20> <114,20>
Face verts 3 flags 0 mat 0
<142,23> <114,23> <144,23>
Face verts 3 flags 0 mat 0
<145,24> <147,24> <146,24>
Face verts 3 flags 0 mat 0
<119,63> <148,63> <121,63>
Face verts 3 flags 0 mat 0
<116,3> <121,3> <149,3>
Face verts 3 flags 0 mat 0
<145,20> <149,20> <148,20>
Face verts 3 flags 0 mat 0
<121,3> <148,3> <149,3>
Face verts 3 flags 0 mat 0
<143,24> <144,24> <146,24>
Face verts 3 flags 0 mat 0
<145,23> <146,23> <149,23>
Face verts 3 flags 0 mat 0
<116,70> <149,70> <144,70>
Face verts 3 flags 0 mat 0
<146,23> <144,23> <149,23>
Face verts 3 flags 0 mat 0
<134,21> <150,21> <136,21>
Face verts 3 flags 0 mat 0
<132,8> <136,8> <151,8>
Face verts 3 flags 0 mat 0
<152,71> <151,71> <150,71>
Face verts 3 flags 0 mat 0
<136,72> <150,72> <151,72>
Face verts 3 flags 0 mat 0
<124,60> <131,60> <153,60>
Face verts 3 flags 0 mat 0
<154,35> <153,35> <155,35>
Face verts 3 flags 0 mat 0
<132,73> <155,73> <131,73>
Face verts 3 flags 0 mat 0
<153,1> <131,1> <155,1>
Face verts 3 flags 0 mat 0
<156,31> <158,31> <157,31>
Face verts 3 flags 0 mat 0
<152,13> <157,13> <159,13>
Face verts 3 flags 0 mat 0
<154,74> <159,74> <158,74>
Face verts 3 flags 0 mat 0
<157,58> <158,58> <159,58>
Face verts 3 flags 0 mat 0
<132,63> <151,63> <155,63>
Face verts 3 flags 0 mat 0
<154,74> <155,74> <159,74>
Face verts 3 flags 0 mat 0
<152,75> <159,75> <151,75>
Face verts 3 flags 0 mat 0
<155,39> <151,39> <159,39>
Face verts 3 flags 0 mat 0
<124,69> <160,69> <126,69>
Face verts 3 flags 0 mat 0
<122,51> <126,51> <161,51>
Face verts 3 flags 0 mat 0
<162,45> <161,45> <160,45>
Face verts 3 flags 0 mat 0
<126,33> <160,33> <161,33>
Face verts 3 flags 0 mat 0
<119,63> <120,63> <163,63>
Face verts 3 flags 0 mat 0
<164,39> <163,39> <165,39>
Face verts 3 flags 0 mat 0
<122,39> <165,39> <120,39>
Face verts 3 flags 0 mat 0
<163,25> <120,25> <165,25>
Face verts 3 flags 0 mat 0
<166,39> <168,39> <167,39>
Face verts 3 flags 0 mat 0
<162,76> <167,76> <169,76>
Face verts 3 flags 0 mat 0
<164,39> <169,39> <168,39>
Face verts 3 flags 0 mat 0
<167,25> <168,25> <169,25>
Face verts 3 flags 0 mat 0
<122,77> <161,77> <165,77>
Face verts 3 flags 0 mat 0
<164,26> <165,26> <169,26>
Face verts 3 flags 0 mat 0
<162,61> <169,61> <161,61>
Face verts 3 flags 0 mat 0
<165,1> <161,1> <169,1>
Face verts 3 flags 0 mat 0
<119,78> <170,78> <148,78>
Face verts 3 flags 0 mat 0
<145,20> <148,20> <171,20>
Face verts 3 flags 0 mat 0
<172,26> <171,26> <170,26>
Face verts 3 flags 0 mat 0
<148,28> <170,28> <171,28>
Face verts 3 flags 0 mat 0
<145,65> <173,65> <147,65>
Face verts 3 flags 0 mat 0
<174,23> <176,23> <175,23>
Face verts 3 flags 0 mat 0
<172,20> <175,20> <177,20>
Face verts 3 flags 0 mat 0
<178,24> <177,24> <176,24>
Face verts 3 flags 0 mat 0
<175,79> <176,79> <177,79>
Face verts 3 flags 0 mat 0
<145,79> <171,79> <173,79>
Face verts 3 flags 0 mat 0
<178,24> <173,24> <177,24>
Face verts 3 flags 0 mat 0
<172,20> <177,20> <171,20>
Face verts 3 flags 0 mat 0
<173,79> <171,79> <177,79>
Face verts 3 flags 0 mat 0
<134,44> <140,44> <179,44>
Face verts 3 flags 0 mat 0
<180,21> <182,21> <181,21>
Face verts 3 flags 0 mat 0
<183,34> <181,34> <184,34>
Face verts 3 flags 0 mat 0
<185,64> <184,64> <182,64>
Face verts 3 flags 0 mat 0
<181,20> <182,20> <184,20>
Face verts 3 flags 0 mat 0
<156,2> <187,2> <186,2>
Face verts 3 flags 0 mat 0
<188,51> <186,51> <189,51>
Face verts 3 flags 0 mat 0
<183,59> <189,59> <187,59>
Face verts 3 flags 0 mat 0
<186,21> <187,21> <189,21>
Face verts 3 flags 0 mat 0
<166,26> <191,26> <190,26>
Face verts 3 flags 0 mat 0
<185,50> <190,50> <192,50>
Face verts 3 flags 0 mat 0
<188,21> <192,21> <191,21>
Face verts 3 flags 0 mat 0
<190,26> <191,26> <192,26>
Face verts 3 flags 0 mat 0
<183,8> <184,8> <189,8>
Face verts 3 flags 0 mat 0
<188,26> <189,26> <192,26>
Face verts 3 flags 0 mat 0
<185,62> <192,62> <184,62>
Face verts 3 flags 0 mat 0
<189,58> <184,58> <192,58>
Face verts 3 flags 0 mat 0
<180,63> <193,63> <182,63>
Face verts 3 flags 0 mat 0
<185,72> <182,72> <194,72>
Face verts 3 flags 0 mat 0
<195,80> <194,80> <193,80>
Face verts 3 flags 0 mat 0
<182,66> <193,66> <194,66>
Face verts 3 flags 0 mat 0
<166,81> <190,81> <196,81>
Face verts 3 flags 0 mat 0
<197,13> <196,13> <198,13>
Face verts 3 flags 0 mat 0
<185,18> <198,18> <190,18>
Face verts 3 flags 0 mat 0
<196,61> <190,61> <198,61>
Face verts 3 flags 0 mat 0
<174,65> <200,65> <199,65>
Face verts 3 flags 0 mat 0
<195,24> <199,24> <201,24>
Face verts 3 flags 0 mat 0
<197,15> <201,15> <200,15>
Face verts 3 flags 0 mat 0
<199,20> <200,20> <201,20>
Face verts 3 flags 0 mat 0
<185,17> <194,17> <198,17>
Face verts 3 flags 0 mat 0
<197,33> <198,33> <201,33>
Face verts 3 flags 0 mat 0
<195,51> <201,51> <194,51>
Face verts 3 flags 0 mat 0
<198,58> <194,58> <201,58>
Face verts 3 flags 0 mat 0
<180,22> <202,22> <193,22>
Face verts 3 flags 0 mat 0
<195,22> <193,22> <203,22>
Face verts 3 flags 0 mat 0
<174,22> <199,22> <204,22>
Face verts 3 flags 0 mat 0
<195,22> <205,22> <199,22>
Face verts 3 flags 0 mat 0
<204,44> <199,44> <205,44>
Face verts 3 flags 0 mat 0
<195,44> <203,44> <205,44>
Face verts 3 flags 0 mat 0
<180,24> <206,24> <202,24>
Face verts 3 flags 0 mat 0
<180,23> <181,23> <206,23>
Face verts 3 flags 0 mat 0
<207,55> <206,55> <208,55>
Face verts 3 flags 0 mat 0
<183,66> <208,66> <181,66>
Face verts 3 flags 0 mat 0
<206,23> <181,23> <208,23>
Face verts 3 flags 0 mat 0
<209,55> <211,55> <210,55>
Face verts 3 flags 0 mat 0
<156,40> <212,40> <187,40>
Face verts 3 flags 0 mat 0
<183,58> <187,58> <213,58>
Face verts 3 flags 0 mat 0
<209,54> <213,54> <212,54>
Face verts 3 flags 0 mat 0
<187,66> <212,66> <213,66>
Face verts 3 flags 0 mat 0
<207,55> <208,55> <210,55>
Face verts 3 flags 0 mat 0
<209,23> <210,23> <213,23>
Face verts 3 flags 0 mat 0
<183,15> <213,15> <208,15>
Face verts 3 flags 0 mat 0
<210,23> <208,23> <213,23>
Face verts 3 flags 0 mat 0
<166,21> <167,21> <191,21>
Face verts 3 flags 0 mat 0
<188,75> <191,75> <214,75>
Face verts 3 flags 0 mat 0
<162,8> <214,8> <167,8>
Face verts 3 flags 0 mat 0
<191,6> <167,6> <214,6>
Face verts 3 flags 0 mat 0
<156,26> <186,26> <158,26>
Face verts 3 flags 0 mat 0
<154,20> <158,20> <215,20>
Face verts 3 flags 0 mat 0
<188,10> <215,10> <186,10>
Face verts 3 flags 0 mat 0
<158,20> <186,20> <215,20>
Face verts 3 flags 0 mat 0
<124,66> <153,66> <160,66>
Face verts 3 flags 0 mat 0
<162,32> <160,32> <216,32>
Face verts 3 flags 0 mat 0
<154,68> <216,68> <153,68>
Face verts 3 flags 0 mat 0
<160,78> <153,78> <216,78>
Face verts 3 flags 0 mat 0
<188,8> <214,8> <215,8>
Face verts 3 flags 0 mat 0
<154,37> <215,37> <216,37>
Face verts 3 flags 0 mat 0
<162,4> <216,4> <214,4>
Face verts 3 flags 0 mat 0
<215,8> <214,8> <216,8>
Face verts 3 flags 0 mat 0
<174,57> <175,57> <200,57>
Face verts 3 flags 0 mat 0
<197,20> <200,20> <217,20>
Face verts 3 flags 0 mat 0
<172,26> <217,26> <175,26>
Face verts 3 flags 0 mat 0
<200,26> <175,26> <217,26>
Face verts 3 flags 0 mat 0
<166,26> <196,26> <168,26>
Face verts 3 flags 0 mat 0
<164,26> <168,26> <218,26>
Face verts 3 flags 0 mat 0
<197,29> <218,29> <196,29>
Face verts 3 flags 0 mat 0
<168,3> <196,3> <218,3>
Face verts 3 flags 0 mat 0
<119,13> <163,13> <170,13>
Face verts 3 flags 0 mat 0
<172,82> <170,82> <219,82>
Face verts 3 flags 0 mat 0
<164,50> <219,50> <163,50>
Face verts 3 flags 0 mat 0
<170,13> <163,13> <219,13>
Face verts 3 flags 0 mat 0
<197,13> <217,13> <218,13>
Face verts 3 flags 0 mat 0
<164,34> <218,34> <219,34>
Face verts 3 flags 0 mat 0
<172,54> <219,54> <217,54>
Face verts 3 flags 0 mat 0
<218,13> <217,13> <219,13>
Face verts 3 flags 0 mat 0
<174,24> <204,24> <176,24>
Face verts 3 flags 0 mat 0
<156,75> <157,75> <212,75>
Face verts 3 flags 0 mat 0
<209,82> <212,82> <220,82>
Face verts 3 flags 0 mat 0
<152,70> <220,70> <157,70>
Face verts 3 flags 0 mat 0
<212,3> <157,3> <220,3>
Face verts 3 flags 0 mat 0
<209,55> <221,55> <211,55>
Face verts 3 flags 0 mat 0
<134,23> <179,23> <150,23>
Face verts 3 flags 0 mat 0
<152,66> <150,66> <222,66>
Face verts 3 flags 0 mat 0
<223,44> <222,44> <179,44>
Face verts 3 flags 0 mat 0
<150,23> <179,23> <222,23>
Face verts 3 flags 0 mat 0
<209,23> <220,23> <221,23>
Face verts 3 flags 0 mat 0
<223,55> <221,55> <222,55>
Face verts 3 flags 0 mat 0
<152,1> <222,1> <220,1>
Face verts 3 flags 0 mat 0
<221,23> <220,23> <222,23>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string ".\reef.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
