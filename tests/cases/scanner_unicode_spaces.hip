 frange 7 9 
ſet -g SHOT = 'sh010'
set -g _HIP_ſAVEVERSION = '19.5.303'
　take name Alt x
obj/cam1.parm { 
}
