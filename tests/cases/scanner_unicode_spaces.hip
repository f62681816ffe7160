 frange 7 9 
ſet -g SHOT = 'sh010'
set -g _HIP_ſAVEVERSION = '19.5.303'
　take name Alt x
obj/cam1.parm { 
res	[ 0	locks=0 ]	(	640	480	)
}
out/show.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/u/$SHOT/$ACTIVETAKE.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
}
