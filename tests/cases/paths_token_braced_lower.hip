out/low.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/r/low.${f4}.exr"	)
}
